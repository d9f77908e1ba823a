// Host NUMBER FOLDER [COMMAND...]
//
// A training host over the interface AbstractModule. FOLDER holds what the course delivers for question NUMBER
// (07305314.ppt for 314). The learner presses Enter when done; or COMMAND, run to its end, does the learner's work.
// Each further one is another attempt, which only questions 301 and 305 can be checked for without being opened anew.
//
//   Host 314 C:\Course

#include <K73053.h>
#include <wrl/client.h>

#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;

namespace {

/// An automation string.
class Text {
public:
    explicit Text(const std::wstring& text = {})
        : text_(SysAllocStringLen(text.c_str(), static_cast<UINT>(text.size()))) {}
    ~Text() { SysFreeString(text_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    BSTR get() const { return text_; }
    /// Where a call leaves a string.
    BSTR* receive() {
        SysFreeString(text_);
        text_ = nullptr;
        return &text_;
    }
    std::string utf8() const {
        const int length = static_cast<int>(SysStringLen(text_));
        const int size = WideCharToMultiByte(CP_UTF8, 0, text_, length, nullptr, 0, nullptr, nullptr);
        std::string result(static_cast<std::size_t>(size), '\0');
        WideCharToMultiByte(CP_UTF8, 0, text_, length, result.data(), size, nullptr, nullptr);
        return result;
    }

private:
    BSTR text_;
};

/// A call that failed, and what the library says of it.
struct Failure {
    HRESULT number;
    std::string source;
    std::string description;
};

/// Raises a Failure where a call of an interface has failed.
template <typename Interface> void require(const ComPtr<Interface>& object, HRESULT status) {
    if (SUCCEEDED(status)) {
        return;
    }
    Text source;
    Text description;
    ComPtr<ISupportErrorInfo> supports;
    ComPtr<IErrorInfo> info;
    if (object && SUCCEEDED(object.As(&supports)) &&
        supports->InterfaceSupportsErrorInfo(__uuidof(Interface)) == S_OK && GetErrorInfo(0, &info) == S_OK) {
        info->GetSource(source.receive());
        info->GetDescription(description.receive());
    }
    throw Failure{status, source.utf8(), description.utf8()};
}

/// PowerPoint as the module hands it out: a host keeps both from question to question.
struct Session {
    ComPtr<IDispatch> application;
    LONG window = -1; ///< unknown
};

ComPtr<AbstractModule> createModule() {
    ComPtr<AbstractModule> module;
    CLSID id{};
    HRESULT status = CLSIDFromProgID(L"K73053.Module", &id);
    if (SUCCEEDED(status)) {
        status = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(AbstractModule),
                                  reinterpret_cast<void**>(module.GetAddressOf()));
    }
    if (status == E_NOINTERFACE) {
        throw Failure{status, "K73053.Module", "has no AbstractModule of this identity: is K73053.h of this library?"};
    }
    if (FAILED(status)) {
        throw Failure{status, "K73053.Module", "cannot be created: is the library registered?"};
    }
    return module;
}

void prepare(const ComPtr<AbstractModule>& module, Session& session, LONG number, const std::wstring& folder) {
    // GetAddressOf leaves in place what the host holds: the module takes it, and releases it where it gives another.
    require(module, module->InitQuestion(number, Text(folder).get(), session.application.GetAddressOf(),
                                         &session.window, Text().get()));
    std::printf("Question %ld is open, window %ld\n", number, session.window);
}

void learn(const wchar_t* command) {
    if (command != nullptr) {
        _wsystem(command);
        return;
    }
    std::puts("Do the exercise in PowerPoint, then press Enter.");
    std::getchar();
}

/// True where this alone is the verdict, and says that the work is right: a letter would be an earlier attempt's.
bool checkPasses(const ComPtr<AbstractModule>& module, LONG number) {
    try {
        require(module, module->TestePoint());
        return false;
    } catch (const Failure& failure) {
        // A passed attempt of question 305 arrives as this error, without a description.
        constexpr auto invalidCall = static_cast<HRESULT>(0x800A0005);
        if (number != 305 || failure.number != invalidCall || !failure.description.empty()) {
            throw;
        }
        return true;
    }
}

void tellComplement(const ComPtr<AbstractModule>& module) {
    ComPtr<TableauTexte> texts;
    require(module, module->Complement(&texts));
    LONG count = 0;
    require(texts, texts->count(&count));
    for (LONG i = 1; i <= count; ++i) {
        Text text;
        require(texts, texts->item(i, text.receive()));
        std::printf("  %s\n", text.utf8().c_str());
    }
}

void tell(const ComPtr<AbstractModule>& module) {
    VARIANT_BOOL isGeneral = VARIANT_FALSE;
    VARIANT_BOOL hasRemark = VARIANT_FALSE;
    Text cause;
    require(module, module->ErreurGenerale(&isGeneral));
    require(module, module->CauseErreur(cause.receive()));
    if (isGeneral != VARIANT_FALSE) {
        std::printf("The work could not be checked: %s\n", cause.utf8().c_str());
        return;
    }
    require(module, module->BravoNuance(&hasRemark));
    if (hasRemark != VARIANT_FALSE) {
        std::printf("Passed, with the remark %s\n", cause.utf8().c_str());
    } else if (!cause.utf8().empty()) {
        std::printf("Not yet: %s\n", cause.utf8().c_str());
    } else {
        std::puts("Passed");
    }
    tellComplement(module);
}

/// Says what a step raises. True where it raises nothing.
template <typename Step> bool succeeds(const Step& step) {
    try {
        step();
        return true;
    } catch (const Failure& failure) {
        std::printf("Error %08lX: %s %s\n", static_cast<unsigned long>(failure.number), failure.source.c_str(),
                    failure.description.c_str());
        return false;
    }
}

void runQuestion(LONG number, const std::wstring& folder, const std::vector<const wchar_t*>& commands, bool& isGood) {
    const auto module = createModule();
    Session session;
    wchar_t library[MAX_PATH] = L"";
    GetModuleFileNameW(GetModuleHandleW(L"K73053.dll"), library, MAX_PATH);
    std::printf("Library %s\n", Text(library).utf8().c_str());

    isGood = succeeds([&] {
        prepare(module, session, number, folder);
        for (const wchar_t* const command : commands) {
            learn(command);
            if (checkPasses(module, number)) {
                std::puts("Passed");
            } else {
                tell(module);
            }
        }
    });
    // Whatever has failed, the learner's settings come back. A question that never opened cannot be closed: that is no
    // news.
    const HRESULT closed = module->Fermer();
    isGood = isGood && succeeds([&] { require(module, closed); });
    require(module, module->Quitter(session.application.GetAddressOf(), &session.window));
    std::printf("Closed: PowerPoint ended is %s, window %ld\n", session.application ? "False" : "True", session.window);
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 3) {
        std::puts("Host NUMBER FOLDER [COMMAND...]");
        return 2;
    }
    std::wstring folder = arguments[2];
    if (folder.back() != L'\\') {
        folder += L'\\';
    }
    std::vector<const wchar_t*> commands(arguments + 3, arguments + count);
    if (commands.empty()) {
        commands.push_back(nullptr);
    }
    SetConsoleOutputCP(CP_UTF8);
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    bool isGood = false;
    const bool isClosed =
        succeeds([&] { runQuestion(std::wcstol(arguments[1], nullptr, 10), folder, commands, isGood); });
    CoUninitialize();
    return isGood && isClosed ? 0 : 1;
}
