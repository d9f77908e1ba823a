#pragma once

#include "library/classes/DualDispatch.h"
#include "module/Module.h"

namespace library {

/// The class Module: the host's interface `AbstractModule`.
class ModuleDispatch final : public DualDispatch<k73053::Module, IModule> {
public:
    using DualDispatch::DualDispatch;

    HRESULT STDMETHODCALLTYPE InitQuestion(LONG number, BSTR folder, IDispatch** application, LONG* window,
                                           BSTR unused) noexcept override;
    HRESULT STDMETHODCALLTYPE TestePoint() noexcept override;
    HRESULT STDMETHODCALLTYPE ErreurGenerale(VARIANT_BOOL* result) noexcept override;
    HRESULT STDMETHODCALLTYPE CauseErreur(BSTR* result) noexcept override;
    HRESULT STDMETHODCALLTYPE BravoNuance(VARIANT_BOOL* result) noexcept override;
    HRESULT STDMETHODCALLTYPE Complement(TableauTexte** result) noexcept override;
    HRESULT STDMETHODCALLTYPE Fermer() noexcept override;
    HRESULT STDMETHODCALLTYPE Quitter(IDispatch** application, LONG* window) noexcept override;

protected:
    [[nodiscard]] void* find(REFIID wanted) noexcept override;
};

} // namespace library
