#pragma once

#include "simulator/document/Presentation.h"

/// Masters and notes pages. What a presentation lacks of them is made as PowerPoint makes it once it is asked for.
namespace simulator {

/// A master with the placeholders that PowerPoint gives it, or a notes page, at home in no presentation yet.
[[nodiscard]] SlidePtr makeSheet(SheetKind kind, const Presentation& presentation);

/// The first slide master, which slides follow that name none.
[[nodiscard]] SlidePtr slideMasterOf(Presentation& presentation);
[[nodiscard]] SlidePtr notesMasterOf(Presentation& presentation);
[[nodiscard]] SlidePtr handoutMasterOf(Presentation& presentation);
/// The title master that stands beside a slide master; null where there is none.
[[nodiscard]] SlidePtr titleMasterOf(const Presentation& presentation, const Slide& slideMaster) noexcept;
/// Puts a title master beside the slide master.
SlidePtr addTitleMaster(Presentation& presentation);
/// The master that a sheet of a presentation follows: a title slide the title master, where there is one. A master
/// other than a title master follows none: null.
[[nodiscard]] SlidePtr masterOf(Presentation& presentation, const Slide& sheet);
/// The one of a slide or a title master; null where there is none yet.
[[nodiscard]] SlidePtr findMaster(const Presentation& presentation, const Slide& sheet) noexcept;

[[nodiscard]] SlidePtr notesPageOf(Slide& slide);

/// The background that a sheet of a presentation shows: its own, or its master's.
[[nodiscard]] ShapePtr backgroundOf(Presentation& presentation, Slide& sheet);

/// Puts a placeholder back that every sheet of this kind has, and that was deleted; null where there is none of this
/// type to put back.
ShapePtr restoreStandardPlaceholder(Slide& sheet, PpPlaceholderType type);

} // namespace simulator
