#pragma once

#include "simulator/objects/PowerPointObject.h"

#include <optional>

namespace simulator {

class DocumentWindowObject;
class DocumentWindowsObject;
class MasterObject;
class PageSetupObject;
class PresentationsObject;
class SlideShowSettingsObject;
class SlideShowWindowObject;
class SlidesObject;
class TagsObject;

enum PpSaveAsFileType : std::int32_t {
    ppSaveAsPresentation = 1,
    ppSaveAsTemplate = 5,
    ppSaveAsRTF = 6,
    ppSaveAsShow = 7,
    ppSaveAsDefault = 11,
};

/// Presentation: an open presentation. Members raise `errors::gone` once it is closed.
class PresentationObject final : public PowerPointObject {
public:
    PresentationObject(ProcessPtr process, std::weak_ptr<Presentation> presentation)
        : PowerPointObject(std::move(process)), presentation_(std::move(presentation)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;
    /// True for another reference to the same open presentation.
    [[nodiscard]] bool isSame(const Object& other) const noexcept override;

    [[nodiscard]] std::u16string name() const { return document()->name; }
    /// Folder and name; the name alone where it was never saved.
    [[nodiscard]] std::u16string fullName() const;
    /// Folder without a backslash at its end; empty where the presentation was never saved.
    [[nodiscard]] std::u16string path() const;
    [[nodiscard]] MsoTriState readOnly() const;
    [[nodiscard]] MsoTriState saved() const;
    void setSaved(MsoTriState saved) const;
    [[nodiscard]] MsoTriState snapToGrid() const;
    void setSnapToGrid(MsoTriState snaps) const;
    /// Points between two lines of the grid. It is not kept in files.
    [[nodiscard]] float gridDistance() const;
    /// Raises an invalid request outside 1 to 144.
    void setGridDistance(float points) const;

    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::shared_ptr<SlidesObject> slides() const;
    [[nodiscard]] std::shared_ptr<MasterObject> slideMaster() const;
    [[nodiscard]] MsoTriState hasTitleMaster() const;
    /// Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<MasterObject> titleMaster() const;
    /// Raises an invalid request where there is one.
    [[nodiscard]] std::shared_ptr<MasterObject> addTitleMaster() const;
    [[nodiscard]] std::shared_ptr<MasterObject> notesMaster() const;
    [[nodiscard]] std::shared_ptr<MasterObject> handoutMaster() const;
    [[nodiscard]] std::shared_ptr<SlideShowSettingsObject> slideShowSettings() const;
    /// Raises an invalid request where its slide show does not run.
    [[nodiscard]] std::shared_ptr<SlideShowWindowObject> slideShowWindow() const;
    /// Another window on it, in front.
    [[nodiscard]] std::shared_ptr<DocumentWindowObject> newWindow() const;
    [[nodiscard]] std::shared_ptr<TagsObject> tags() const;
    [[nodiscard]] std::shared_ptr<PageSetupObject> pageSetup() const;
    /// The windows that show this presentation.
    [[nodiscard]] std::shared_ptr<DocumentWindowsObject> windows() const;

    /// Closes without a question; what was not saved is lost.
    void close() const { process()->close(document()); }
    /// Raises an invalid request for a presentation opened read-only.
    void save() const { process()->save(document()); }
    /// Saves under another name, which the presentation bears from then on. As an outline (RTF) it writes the file and
    /// leaves the presentation as it is. A name without an extension gets the format's.
    void saveAs(const std::u16string& fileName, std::optional<PpSaveAsFileType> format,
                std::optional<MsoTriState> embedFonts) const;
    /// The same, without renaming the presentation.
    void saveCopyAs(const std::u16string& fileName, std::optional<PpSaveAsFileType> format,
                    std::optional<MsoTriState> embedFonts) const;

private:
    [[nodiscard]] PresentationPtr document() const { return simulator::alive(presentation_); }
    [[nodiscard]] std::shared_ptr<MasterObject> objectOf(const SlidePtr& master) const;
    [[nodiscard]] std::u16string target(const std::u16string& fileName, PpSaveAsFileType format) const;

    std::weak_ptr<Presentation> presentation_;
};

} // namespace simulator
