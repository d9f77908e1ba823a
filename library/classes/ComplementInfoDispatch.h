#pragma once

#include "collections/ComplementInfo.h"
#include "library/classes/DualDispatch.h"

namespace library {

/// The class ComplementInfo: the host's interface under its own names, and under those of the class.
class ComplementInfoDispatch final : public DualDispatch<collections::ComplementInfo, IComplementInfo, TableauTexte> {
public:
    using DualDispatch::DualDispatch;

    HRESULT STDMETHODCALLTYPE ComplementInfo_add(BSTR text, LONG ignored) noexcept override {
        return add(text, ignored);
    }
    HRESULT STDMETHODCALLTYPE ComplementInfo_count(LONG* result) noexcept override { return count(result); }
    HRESULT STDMETHODCALLTYPE ComplementInfo_item(LONG index, BSTR* result) noexcept override {
        return item(index, result);
    }

    HRESULT STDMETHODCALLTYPE add(BSTR text, LONG ignored) noexcept override {
        return run([&] { object().add(automation::com::Bstr::textOf(text), ignored); });
    }
    HRESULT STDMETHODCALLTYPE count(LONG* result) noexcept override {
        return give(result, [&] { return object().count(); });
    }
    HRESULT STDMETHODCALLTYPE item(LONG index, BSTR* result) noexcept override {
        return give(result, [&] { return object().item(index); });
    }
};

} // namespace library
