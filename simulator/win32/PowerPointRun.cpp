#include "simulator/win32/PowerPointRun.h"

#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"
#include "simulator/objects/ApplicationObject.h"
#include "simulator/win32/StandInIdentity.h"

#include <shlobj.h>

#include <array>

namespace simulator::standin {

namespace {

using automation::com::check;
using automation::com::ComPtr;
using automation::com::dispatchOf;
using automation::com::identityOf;

std::filesystem::path onDisk(std::u16string_view path) {
    return {path};
}

std::u16string documentsFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    return SUCCEEDED(SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder.data()))
               ? automation::com::fromWide(folder.data())
               : Settings().documentsFolder;
}

} // namespace

PowerPointRun::PowerPointRun(const Options& options, std::function<void()> onEnd)
    : store_(onDisk), window_([this] { process_->end(); }),
      process_(std::make_shared<Process>(window_, store_, settings_)),
      control_(std::make_shared<ControlObject>(window_, settings_.savePrompt, troubles_)),
      controlDispatch_(dispatchOf(control_)), application_(dispatchOf(std::make_shared<ApplicationObject>(process_))),
      gate_(automation::com::makeCom<CallGate>(identityOf(controlDispatch_.get()).get(),
                                               [this] { return window_.dialogs() != 0; })) {
    settings_.documentsFolder = documentsFolder();
    troubles_.setSlowness(options.slowness);
    troubles_.dieAtCall(options.deadlyCall);
    gate_->refuse(options.refusals);
    control_->setGate(gate_);
    process_->onCall([this] { troubles_.meet(); });
    process_->onEnd([this, onEnd = std::move(onEnd)] {
        withdraw();
        onEnd();
    });
    publish();
}

PowerPointRun::~PowerPointRun() {
    process_->end();
    control_->end();
    ComPtr<IMessageFilter> former;
    CoRegisterMessageFilter(nullptr, former.receive());
}

void PowerPointRun::show(bool isMinimised) {
    if (isMinimised) {
        window_.setState(ppWindowMinimized);
    }
    window_.setVisible(true);
    if (!isMinimised) {
        window_.activate();
    }
}

void PowerPointRun::publish() {
    ComPtr<IMessageFilter> former;
    check(CoRegisterMessageFilter(gate_.get(), former.receive()));
    check(RegisterActiveObject(application_.get(), applicationClass, ACTIVEOBJECT_STRONG, &applicationEntry_));
    check(RegisterActiveObject(controlDispatch_.get(), controlClass, ACTIVEOBJECT_STRONG, &controlEntry_));
}

void PowerPointRun::withdraw() {
    for (DWORD* const entry : {&applicationEntry_, &controlEntry_}) {
        if (const DWORD held = std::exchange(*entry, 0)) {
            RevokeActiveObject(held, nullptr);
        }
    }
}

} // namespace simulator::standin
