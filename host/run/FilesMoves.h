#pragma once

#include "automation/MemberTable.h"
#include "host/world/World.h"

namespace host {

/// `Files`: the files of the computer. A name without a folder is one of the host's folder.
///
///     Files.Create "Plan exo 3"                 an empty file
///     Files.Copy "Méthodologie.ppt", "C:\Ailleurs\Copie.ppt"
///     Files.Delete "07305306.ppt"
///     Files.MakeReadOnly "07305306.ppt"
///     Files.MakeHidden "Plan exo 3.rtf"
///     ActivePresentation.SaveAs Files.Folder & "Plan"     the host's folder
///     expect Files.Exists("Méthodologie.ppt") = True
class FilesMoves final : public automation::Published {
public:
    /// `world` must outlive this object.
    explicit FilesMoves(World& world) noexcept : world_(world) {}

    void create(const std::u16string& name);
    void copy(const std::u16string& from, const std::u16string& to);
    void remove(const std::u16string& name);
    void makeReadOnly(const std::u16string& name);
    void makeHidden(const std::u16string& name);
    [[nodiscard]] bool exists(const std::u16string& name);
    [[nodiscard]] std::u16string folder() const { return world_.hostFolder(); }

    [[nodiscard]] std::u16string className() const override { return u"Files"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    [[nodiscard]] std::u16string path(const std::u16string& name) const;

    World& world_;
};

} // namespace host
