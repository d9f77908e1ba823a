#include "simulator/Machine.h"

#include "automation/Error.h"
#include "simulator/files/FilePresentationStore.h"
#include "simulator/system/EmbeddedFiles.h"
#include "simulator/system/EmbeddedKeyboard.h"
#include "simulator/system/EmbeddedLocale.h"
#include "simulator/system/EmbeddedProgram.h"
#include "simulator/system/EmbeddedRegistry.h"
#include "simulator/system/EmbeddedServers.h"
#include "simulator/system/EmbeddedStore.h"

#include <algorithm>

namespace simulator {

namespace {

constexpr std::u16string_view profile = u"C:\\Documents and Settings\\Eleve\\";

std::u16string inProfile(std::u16string_view folder) {
    return std::u16string(profile) + std::u16string(folder);
}

/// What Windows and Office have written for a user who has worked with them a little.
void fillRegistry(EmbeddedRegistry& registry) {
    constexpr std::u16string_view recentFolders = u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList";
    registry.setText(recentFolders, u"Default", inProfile(u"Mes documents\\"));
    registry.setText(recentFolders, u"MultimediaDir", inProfile(u"Mes documents\\Ma musique\\"));
    registry.setText(recentFolders, u"PictureDir", inProfile(u"Mes documents\\Mes images\\"));
    registry.setText(recentFolders, u"TemplateDir", inProfile(u"Application Data\\Microsoft\\Modèles\\"));
    registry.setText(u"SOFTWARE\\Microsoft\\Office\\11.0\\Common\\General", u"Templates", u"Modèles");
    registry.setText(u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", u"AppData",
                     inProfile(u"Application Data"));
}

} // namespace

struct Machine::Parts {
    explicit Parts(const std::filesystem::path& root) : files(root) {
        fillRegistry(registry);
        files.makeDirectories(settings.documentsFolder + u"\\");
        files.makeDirectories(inProfile(u"Application Data\\"));
        files.setIsOpen([this](const std::filesystem::path& file) { return isOpenInPowerPoint(file); });
    }

    [[nodiscard]] bool isOpenInPowerPoint(const std::filesystem::path& file) const {
        const ProcessPtr process = program.process();
        if (!process) {
            return false;
        }
        const auto& open = process->presentations();
        return std::any_of(open.begin(), open.end(), [&](const PresentationPtr& presentation) {
            return !presentation->path.empty() && files.realPath(presentation->path) == file;
        });
    }

    /// Does something with the main window while PowerPoint runs.
    template <typename Action> void onMainWindow(const Action& action) const {
        if (const ProcessPtr process = program.process()) {
            action(process->window());
        }
    }

    EmbeddedWindows windows;
    EmbeddedRegistry registry;
    EmbeddedFiles files;
    EmbeddedKeyboard keyboard{windows};
    EmbeddedLocale locale;
    Settings settings;
    FilePresentationStore presentationFiles{[this](std::u16string_view path) { return files.realPath(path); }};
    EmbeddedStore store{presentationFiles, files};
    EmbeddedProgram program{windows, store, settings};
    EmbeddedServers servers{program};
    platform::Services services{windows, registry, files, keyboard, locale, servers};
};

Machine::Machine(const std::filesystem::path& root) : parts_(std::make_unique<Parts>(root)) {}

Machine::~Machine() = default;

const platform::Services& Machine::services() noexcept {
    return parts_->services;
}

std::filesystem::path Machine::realPath(std::u16string_view windowsPath) const {
    return parts_->files.realPath(windowsPath);
}

void Machine::setAttributes(std::u16string_view path, std::uint32_t attributes) {
    parts_->files.setAttributes(path, attributes);
}

void Machine::createFile(std::u16string_view path) {
    parts_->files.create(path);
}

void Machine::startPowerPoint() {
    parts_->program.start();
    parts_->onMainWindow([](MainWindow& window) {
        window.setVisible(true);
        window.activate();
    });
}

bool Machine::isPowerPointRunning() const noexcept {
    return parts_->program.isRunning();
}

automation::ObjectPtr Machine::application() {
    return parts_->program.application();
}

ProcessPtr Machine::process() const noexcept {
    return parts_->program.process();
}

platform::WindowHandle Machine::mainWindow() const noexcept {
    const ProcessPtr process = parts_->program.process();
    return process ? process->window().handle() : 0;
}

void Machine::endPowerPoint() {
    parts_->program.end();
}

void Machine::endPowerPointAtCall(std::int32_t n) {
    if (const ProcessPtr process = parts_->program.process()) {
        process->onCall([this, left = n]() mutable {
            if (--left == 0) {
                endPowerPoint();
                throw automation::Error(automation::remote::callFailed, {}, u"L'appel de procédure distante a échoué.");
            }
        });
    }
}

void Machine::setBusy(bool busy) {
    if (const ProcessPtr process = parts_->program.process()) {
        process->setBusy(busy);
    }
}

void Machine::hidePowerPoint() {
    parts_->onMainWindow([](MainWindow& window) { window.setVisible(false); });
}

void Machine::minimizePowerPoint() {
    parts_->onMainWindow([](MainWindow& window) { window.setState(ppWindowMinimized); });
}

void Machine::openDialog(std::u16string_view title) {
    parts_->onMainWindow([title](MainWindow& window) { window.openDialog(title); });
}

std::size_t Machine::dialogs() const {
    std::size_t count = 0;
    parts_->onMainWindow([&count](const MainWindow& window) { count = window.dialogs(); });
    return count;
}

void Machine::closeDialog() {
    parts_->onMainWindow([](MainWindow& window) { window.closeDialog(); });
}

void Machine::answerSaving(std::u16string_view answer) {
    parts_->settings.savePrompt.answer = SavePrompt::answerOf(answer);
    if (!parts_->settings.savePrompt.answer) {
        automation::raise(automation::RunTimeError::InvalidProcedureCall);
    }
}

void Machine::followDocumentation() {
    parts_->settings.isAsDocumented = true;
}

const std::vector<std::u16string>& Machine::droppedUnasked() const noexcept {
    return parts_->settings.savePrompt.unanswered;
}

void Machine::uninstallPowerPoint() {
    parts_->program.uninstall();
}

platform::WindowHandle Machine::foregroundWindow() const {
    return parts_->windows.foreground();
}

platform::WindowHandle Machine::openWindow(std::u16string_view className, std::u16string_view title) {
    return parts_->windows.create({.className = std::u16string(className), .title = std::u16string(title)});
}

std::u16string Machine::registryText(std::u16string_view key, std::u16string_view name) const {
    return parts_->registry.text(key, name).value_or(std::u16string());
}

void Machine::setRegistryText(std::u16string_view key, std::u16string_view name, std::u16string_view text) {
    parts_->registry.setText(key, name, text);
}

void Machine::deleteRegistryValue(std::u16string_view key, std::u16string_view name) {
    parts_->registry.remove(key, name);
}

void Machine::denyRegistryKey(std::u16string_view key, bool denied) {
    parts_->registry.deny(key, denied);
}

std::size_t Machine::openRegistryKeys() const noexcept {
    return parts_->registry.openHandles();
}

void Machine::setMeasurementSystem(std::string_view text) {
    parts_->locale.setItem(platform::Locale::measurementSystem, text);
}

const std::u16string& Machine::keysSent() const noexcept {
    return parts_->keyboard.sent();
}

} // namespace simulator
