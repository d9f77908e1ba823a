#include "host/win32/VtableModule.h"

#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"

namespace host {

namespace {

using automation::Error;
using automation::ObjectPtr;
using automation::com::Bstr;
using automation::com::ComPtr;

/// What an interface left as the thread's error object; the system's words where it leaves none.
Error raisedBy(IUnknown* object, REFIID interfaceId, HRESULT status) {
    const auto supports = automation::com::queryFor<ISupportErrorInfo>(object);
    ComPtr<IErrorInfo> info;
    if (!supports || supports->InterfaceSupportsErrorInfo(interfaceId) != S_OK ||
        GetErrorInfo(0, info.receive()) != S_OK) {
        return automation::com::errorOf(status);
    }
    Bstr source;
    Bstr description;
    Bstr helpFile;
    DWORD helpContext = 0;
    info->GetSource(source.receive());
    info->GetDescription(description.receive());
    info->GetHelpFile(helpFile.receive());
    info->GetHelpContext(&helpContext);
    const std::int32_t number = automation::com::errorOf(status).number();
    // An error without a number, and so without words, cannot leave the library as such.
    const bool isNone = number == static_cast<std::int32_t>(automation::RunTimeError::InvalidProcedureCall) &&
                        description.text().empty();
    return {isNone ? 0 : number, source.text(), description.text(), helpFile.text(),
            static_cast<std::int32_t>(helpContext)};
}

template <typename Interface> void require(const ComPtr<Interface>& object, HRESULT status) {
    if (FAILED(status)) {
        throw raisedBy(object.get(), __uuidof(Interface), status);
    }
}

/// Lends the host's application reference and window handle to a call, and takes them back however it ends.
template <typename Call> HRESULT exchanging(ObjectPtr& application, std::int32_t& window, const Call& call) {
    IDispatch* reference = automation::com::dispatchOf(application).release();
    LONG handle = window;
    const HRESULT status = call(&reference, &handle);
    application = automation::com::objectOf(ComPtr<IDispatch>::adopt(reference).get());
    window = handle;
    return status;
}

ComPtr<AbstractModule> create() {
    CLSID id{};
    void* created = nullptr;
    automation::com::check(CLSIDFromProgID(L"K73053.Module", &id));
    automation::com::check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(AbstractModule), &created));
    return ComPtr<AbstractModule>::adopt(static_cast<AbstractModule*>(created));
}

} // namespace

VtableModule::VtableModule() : module_(create()) {}

void VtableModule::initQuestion(std::int32_t number, const std::u16string& folder, ObjectPtr& application,
                                std::int32_t& window) {
    const Bstr folderText(folder);
    const Bstr unused{u""};
    require(module_, exchanging(application, window, [&](IDispatch** reference, LONG* handle) {
                return module_->InitQuestion(number, folderText.get(), reference, handle, unused.get());
            }));
}

void VtableModule::testePoint() {
    require(module_, module_->TestePoint());
}

bool VtableModule::erreurGenerale() {
    VARIANT_BOOL result = VARIANT_FALSE;
    require(module_, module_->ErreurGenerale(&result));
    return result != VARIANT_FALSE;
}

std::u16string VtableModule::causeErreur() {
    Bstr result;
    require(module_, module_->CauseErreur(result.receive()));
    return result.text();
}

bool VtableModule::bravoNuance() {
    VARIANT_BOOL result = VARIANT_FALSE;
    require(module_, module_->BravoNuance(&result));
    return result != VARIANT_FALSE;
}

std::vector<std::u16string> VtableModule::complement() {
    ComPtr<TableauTexte> texts;
    require(module_, module_->Complement(texts.receive()));
    std::vector<std::u16string> result;
    if (!texts) {
        return result;
    }
    LONG count = 0;
    require(texts, texts->count(&count));
    for (LONG i = 1; i <= count; ++i) {
        Bstr text;
        require(texts, texts->item(i, text.receive()));
        result.push_back(text.text());
    }
    return result;
}

void VtableModule::fermer() {
    require(module_, module_->Fermer());
}

void VtableModule::quitter(ObjectPtr& application, std::int32_t& window) {
    require(module_, exchanging(application, window, [&](IDispatch** reference, LONG* handle) {
                return module_->Quitter(reference, handle);
            }));
}

} // namespace host
