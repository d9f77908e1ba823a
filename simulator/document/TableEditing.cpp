#include "simulator/document/TableGrid.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

namespace simulator {

namespace {

using enum TableAxis;

constexpr TableAxis other(TableAxis axis) noexcept {
    return axis == Rows ? Columns : Rows;
}

/// A part in the format of another, without its text, its name and its tags.
TablePart blankCopyOf(const TablePart& model) {
    TablePart copy = model;
    copy.shape = model.shape->clone();
    copy.shape->id = 0;
    copy.shape->name.clear();
    copy.shape->tags = {};
    if (copy.shape->text) {
        copy.shape->text->replace({0, copy.shape->text->text().size()}, {});
    }
    return copy;
}

} // namespace

void TableGrid::addLine(const TablePart& place, bool isVisible) {
    parts_.push_back(place);
    parts_.back().shape = std::make_shared<Shape>();
    Shape& line = *parts_.back().shape;
    line.type = msoLine;
    line.fill.visible = false;
    line.line.visible = isVisible;
    line.line.weight = 1;
}

void TableGrid::addDiagonal(const TablePart& cell, PpBorderType diagonal) {
    addLine(cell, false);
    parts_.back().shape->verticalFlip = diagonal == ppBorderDiagonalUp;
}

bool TableGrid::divideBorders(bool newAreVisible) {
    const std::size_t before = parts_.size();
    std::set<std::tuple<TableAxis, std::size_t, std::size_t>> there;
    for (const TableAxis across : {Columns, Rows}) {
        const TableAxis along = other(across);
        for (std::size_t i = 0; i < before; ++i) {
            if (parts_[i].isCell() || !parts_[i].liesOnEdge(across)) {
                continue;
            }
            for (std::size_t place = parts_[i].begin(along); place < parts_[i].end(along); ++place) {
                there.emplace(across, parts_[i].begin(across), place);
                if (place > parts_[i].begin(along)) {
                    parts_.push_back(blankCopyOf(parts_[i]));
                    parts_.back().begin(along) = place;
                    parts_.back().end(along) = place + 1;
                }
            }
            parts_[i].end(along) = std::min(parts_[i].end(along), parts_[i].begin(along) + 1);
        }
    }
    std::vector<TablePart> missing;
    const std::vector<const TablePart*> all = cells();
    for (const TableAxis across : {Columns, Rows}) {
        const auto cellAt = [&](std::size_t edge, std::size_t place) -> const TablePart* {
            return edge >= count(across) ? nullptr
                   : across == Rows      ? all[edge * count(Columns) + place]
                                         : all[place * count(Columns) + edge];
        };
        for (std::size_t edge = 0; edge <= count(across); ++edge) {
            for (std::size_t place = 0; place < count(other(across)); ++place) {
                const TablePart* const previous = edge == 0 ? nullptr : cellAt(edge - 1, place);
                if (previous != cellAt(edge, place) && !there.contains({across, edge, place})) {
                    TablePart& line = missing.emplace_back();
                    line.begin(across) = line.end(across) = edge;
                    line.begin(other(across)) = place;
                    line.end(other(across)) = place + 1;
                }
            }
        }
    }
    for (const TablePart& line : missing) {
        addLine(line, newAreVisible);
    }
    return parts_.size() != before;
}

void TableGrid::insert(TableAxis axis, std::size_t place, std::size_t model) {
    divideBorders(false);
    const float length = this->length(axis, model);
    edges(axis).insert(edges(axis).begin() + static_cast<std::ptrdiff_t>(place), edges(axis)[place]);
    shiftEdges(axis, place + 1, length);
    if (axis == Rows) {
        const auto least = table_.leastHeights.begin();
        table_.leastHeights.insert(least + static_cast<std::ptrdiff_t>(place), table_.leastHeights[model]);
    }
    std::vector<TablePart> added;
    for (TablePart& part : parts_) {
        std::size_t& begin = part.begin(axis);
        std::size_t& end = part.end(axis);
        const bool isCopied =
            part.liesOnEdge(axis) ? begin == place : begin <= model && model < end && (begin >= place || end <= place);
        if (isCopied) {
            added.push_back(blankCopyOf(part));
            added.back().begin(axis) = place;
            added.back().end(axis) = part.liesOnEdge(axis) ? place : place + 1;
        }
        begin += begin >= place ? 1U : 0U;
        end += end > place || begin > place ? 1U : 0U;
    }
    parts_.insert(parts_.end(), added.begin(), added.end());
}

void TableGrid::erase(TableAxis axis, std::size_t place) {
    divideBorders(false);
    const std::size_t border = place + 1 == count(axis) ? place : place + 1; // the other one stays
    std::erase_if(parts_, [&](const TablePart& part) {
        return part.liesOnEdge(axis) ? part.begin(axis) == border
                                     : part.begin(axis) == place && part.end(axis) == place + 1;
    });
    const float length = this->length(axis, place);
    shiftEdges(axis, place + 1, -length);
    edges(axis).erase(edges(axis).begin() + static_cast<std::ptrdiff_t>(place));
    if (axis == Rows) {
        table_.leastHeights.erase(table_.leastHeights.begin() + static_cast<std::ptrdiff_t>(place));
    }
    for (TablePart& part : parts_) {
        part.begin(axis) -= part.begin(axis) > place ? 1U : 0U;
        part.end(axis) -= part.end(axis) > place ? 1U : 0U;
    }
}

bool TableGrid::merge(const TablePart& one, const TablePart& other) {
    TablePart region;
    for (const TableAxis axis : {Columns, Rows}) {
        region.begin(axis) = std::min(one.begin(axis), other.begin(axis));
        region.end(axis) = std::max(one.end(axis), other.end(axis));
    }
    const ShapePtr first = cellAt(region.begin(Rows), region.begin(Columns)).shape;
    std::vector<const TablePart*> inside;
    for (std::size_t row = region.begin(Rows); row < region.end(Rows); ++row) {
        for (std::size_t column = region.begin(Columns); column < region.end(Columns); ++column) {
            const TablePart& cell = cellAt(row, column);
            if (!cell.isWithin(region)) {
                return false;
            }
            if (std::find(inside.begin(), inside.end(), &cell) == inside.end()) {
                inside.push_back(&cell);
            }
        }
    }
    for (const TablePart* const cell : inside) {
        TextStory& text = *first->text;
        if (cell->shape == first || cell->shape->text->text().empty()) {
            continue;
        }
        if (!text.text().empty()) {
            text.replace({text.text().size(), 0}, std::u16string(1, TextStory::paragraphMark));
        }
        text.replaceWith(*cell->shape->text, {text.text().size(), 0});
    }
    divideBorders(false);
    std::erase_if(parts_, [&](const TablePart& part) {
        const auto isInner = [&](TableAxis axis) {
            return !part.liesOnEdge(axis) ||
                   (part.begin(axis) > region.begin(axis) && part.end(axis) < region.end(axis));
        };
        return part.shape != first && part.isWithin(region) && isInner(Columns) && isInner(Rows);
    });
    TablePart& whole =
        *std::find_if(parts_.begin(), parts_.end(), [&first](const TablePart& part) { return part.shape == first; });
    whole.ends = region.ends;
    return true;
}

void TableGrid::putEdge(TableAxis axis, float points) {
    if (std::abs(edges(axis)[edgeNear(axis, points)] - points) <= tolerance) {
        return;
    }
    const auto above = std::lower_bound(edges(axis).begin(), edges(axis).end(), points);
    const auto place = static_cast<std::size_t>(above - edges(axis).begin());
    edges(axis).insert(above, points);
    for (TablePart& part : parts_) {
        part.begin(axis) += part.begin(axis) >= place ? 1U : 0U;
        part.end(axis) += part.end(axis) >= place ? 1U : 0U;
    }
    if (axis == Rows) { // both parts of the row stay as high as they are
        table_.leastHeights.insert(table_.leastHeights.begin() + static_cast<std::ptrdiff_t>(place), 0);
        table_.leastHeights[place - 1] = length(Rows, place - 1);
        table_.leastHeights[place] = length(Rows, place);
    }
}

bool TableGrid::split(const TablePart& cell, std::size_t rows, std::size_t columns) {
    const ShapePtr shape = cell.shape;
    const Frame frame = frameOf(cell);
    const auto share = [](float start, float length, std::size_t place, std::size_t parts) {
        return toMasterUnits(start + length * static_cast<float>(place) / static_cast<float>(parts));
    };
    if (frame.width < static_cast<float>(columns) || frame.height < static_cast<float>(rows) ||
        count(Columns) + columns > most || count(Rows) + rows > most) {
        return false;
    }
    divideBorders(false);
    for (std::size_t place = 1; place < columns; ++place) {
        putEdge(Columns, share(frame.left, frame.width, place, columns));
    }
    for (std::size_t place = 1; place < rows; ++place) {
        putEdge(Rows, share(frame.top, frame.height, place, rows));
    }
    for (std::size_t row = rows; row-- > 0;) {
        for (std::size_t column = columns; column-- > 0;) {
            const auto whole = std::find_if(parts_.begin(), parts_.end(),
                                            [&shape](const TablePart& part) { return part.shape == shape; });
            TablePart part = row == 0 && column == 0 ? *whole : blankCopyOf(*whole);
            part.begins = {edgeNear(Columns, share(frame.left, frame.width, column, columns)),
                           edgeNear(Rows, share(frame.top, frame.height, row, rows))};
            part.ends = {edgeNear(Columns, share(frame.left, frame.width, column + 1, columns)),
                         edgeNear(Rows, share(frame.top, frame.height, row + 1, rows))};
            if (part.shape == shape) {
                *whole = part;
            } else {
                parts_.insert(whole + 1, part);
            }
        }
    }
    divideBorders(true);
    return true;
}

} // namespace simulator
