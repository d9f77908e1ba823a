#pragma once

#include <cstdint>

namespace simulator {

/// What a sheet with shapes is there for.
enum class SheetKind : std::uint8_t { Slide, SlideMaster, TitleMaster, NotesPage, NotesMaster, HandoutMaster };

/// True for what others follow.
[[nodiscard]] constexpr bool isMaster(SheetKind kind) noexcept {
    return kind != SheetKind::Slide && kind != SheetKind::NotesPage;
}
/// True for the sheets that are as large as a notes page.
[[nodiscard]] constexpr bool isPage(SheetKind kind) noexcept {
    return kind == SheetKind::NotesPage || kind == SheetKind::NotesMaster || kind == SheetKind::HandoutMaster;
}

} // namespace simulator
