#pragma once

#include "simulator/process/Process.h"

namespace simulator {

/// Puts copies of shapes beside them, in front, with their tags. Answers with the copies.
std::vector<ShapePtr> duplicate(const std::vector<ShapePtr>& shapes);

/// Puts copies of shapes on the clipboard.
void copyTo(Clipboard& clipboard, const std::vector<ShapePtr>& shapes);

/// Puts what the clipboard holds on a slide, in front: shapes with their tags, or text in a box of its own. Answers
/// with the new shapes; none where the clipboard holds neither.
std::vector<ShapePtr> paste(const Clipboard& clipboard, Slide& slide);

} // namespace simulator
