#pragma once

#include "automation/MemberTable.h"

#include <string>
#include <vector>

namespace collections {

/// A file that a question works on.
struct WorkingFile {
    std::u16string NomSource; ///< name under which it is delivered; empty for a file that the learner is to produce
    std::u16string NomDest;   ///< name under which the learner works on it
    bool Modele = false;      ///< it lives in the templates folder
};

/// A working-file record as `Item` hands it out: a copy, read by the names of its fields.
class WorkingFileRecord final : public automation::Published {
public:
    explicit WorkingFileRecord(WorkingFile file) : file_(std::move(file)) {}

    [[nodiscard]] std::u16string NomSource() const { return file_.NomSource; }
    [[nodiscard]] std::u16string NomDest() const { return file_.NomDest; }
    [[nodiscard]] bool Modele() const noexcept { return file_.Modele; }

    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    WorkingFile file_;
};

/// The files that a question works on, in the order in which it declares them.
class FichiersDeTravail final : public automation::Published {
public:
    /// Appends a record. Raises Overflow (6) when the 32-bit count is full.
    void add(const std::u16string& NomSource, const std::u16string& NomDest, bool Modele);
    /// Number of records.
    [[nodiscard]] std::int32_t count() const noexcept;
    /// A copy of the record at a 1-based index; raises SubscriptOutOfRange (9) outside 1 to `count`.
    [[nodiscard]] std::shared_ptr<WorkingFileRecord> Item(std::int32_t index) const;

    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    std::vector<WorkingFile> files_;
};

} // namespace collections
