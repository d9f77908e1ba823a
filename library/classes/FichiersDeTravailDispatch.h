#pragma once

#include "collections/FichiersDeTravail.h"
#include "library/classes/DualDispatch.h"

namespace library {

/// The class FichiersDeTravail.
class FichiersDeTravailDispatch final : public DualDispatch<collections::FichiersDeTravail, IFichiersDeTravail> {
public:
    using DualDispatch::DualDispatch;

    HRESULT STDMETHODCALLTYPE add(BSTR NomSource, BSTR NomDest, VARIANT_BOOL Modele) noexcept override {
        using automation::com::Bstr;
        return run([&] { object().add(Bstr::textOf(NomSource), Bstr::textOf(NomDest), Modele != VARIANT_FALSE); });
    }
    HRESULT STDMETHODCALLTYPE count(LONG* result) noexcept override {
        return give(result, [&] { return object().count(); });
    }
    HRESULT STDMETHODCALLTYPE Item(LONG index, IFichierDeTravail** result) noexcept override {
        return give(result, [&] { return object().Item(index); });
    }
};

/// One record of it.
class FichierDeTravailDispatch final : public DualDispatch<collections::WorkingFileRecord, IFichierDeTravail> {
public:
    using DualDispatch::DualDispatch;

    HRESULT STDMETHODCALLTYPE get_NomSource(BSTR* result) noexcept override {
        return give(result, [&] { return object().NomSource(); });
    }
    HRESULT STDMETHODCALLTYPE get_NomDest(BSTR* result) noexcept override {
        return give(result, [&] { return object().NomDest(); });
    }
    HRESULT STDMETHODCALLTYPE get_Modele(VARIANT_BOOL* result) noexcept override {
        return give(result, [&] { return object().Modele(); });
    }
};

} // namespace library
