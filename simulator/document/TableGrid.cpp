#include "simulator/document/TableGrid.h"

#include "simulator/document/Slide.h"
#include "simulator/document/TextFit.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace simulator {

namespace {

using enum TableAxis;

/// Shortest row or column, in points, whatever its cells need.
constexpr float shortest = 1;

} // namespace

bool TablePart::isWithin(const TablePart& other) const noexcept {
    return begins[0] >= other.begins[0] && begins[1] >= other.begins[1] && ends[0] <= other.ends[0] &&
           ends[1] <= other.ends[1];
}

TableGrid::TableGrid(const std::vector<ShapePtr>& items, Table table) : table_(std::move(table)) {
    for (const ShapePtr& item : items) {
        parts_.push_back({item, {}, {}});
        const Frame& frame = item->frame();
        if (parts_.back().isCell() && std::isfinite(frame.left + frame.width + frame.top + frame.height)) {
            edges(Columns).insert(edges(Columns).end(), {frame.left, frame.left + frame.width});
            edges(Rows).insert(edges(Rows).end(), {frame.top, frame.top + frame.height});
        }
    }
    for (std::vector<float>& each : edges_) {
        std::sort(each.begin(), each.end());
        each.erase(std::unique(each.begin(), each.end(), [](float one, float next) { return next - one <= tolerance; }),
                   each.end());
        if (each.empty()) {
            each.push_back(0);
        }
    }
    for (TablePart& part : parts_) {
        const Frame& frame = part.shape->frame();
        part.begins = {edgeNear(Columns, frame.left), edgeNear(Rows, frame.top)};
        part.ends = {edgeNear(Columns, frame.left + frame.width), edgeNear(Rows, frame.top + frame.height)};
    }
    if (table_.leastHeights.size() != count(Rows)) {
        table_.leastHeights.clear();
        for (std::size_t row = 0; row < count(Rows); ++row) {
            table_.leastHeights.push_back(length(Rows, row));
        }
    }
}

std::size_t TableGrid::edgeNear(TableAxis axis, float points) const noexcept {
    const std::vector<float>& all = edges(axis);
    const auto above = std::lower_bound(all.begin(), all.end(), points);
    const auto place = static_cast<std::size_t>(above - all.begin());
    const bool isNearerBefore = place == all.size() || (place > 0 && points - all[place - 1] < all[place] - points);
    return isNearerBefore ? place - 1 : place;
}

bool TableGrid::isWhole() const {
    const bool areKnown = std::all_of(parts_.begin(), parts_.end(), [](const TablePart& part) {
        return !part.isCell() || (part.shape->text && part.shape->type == msoAutoShape);
    });
    const std::vector<const TablePart*> all = cells();
    return areKnown && !all.empty() && std::find(all.begin(), all.end(), nullptr) == all.end();
}

std::vector<const TablePart*> TableGrid::cells() const {
    if (count(Rows) > most || count(Columns) > most) {
        return {};
    }
    std::vector<const TablePart*> all(count(Rows) * count(Columns));
    for (const TablePart& part : parts_) {
        for (std::size_t row = part.begin(Rows); part.isCell() && row < part.end(Rows); ++row) {
            for (std::size_t column = part.begin(Columns); column < part.end(Columns); ++column) {
                const TablePart*& place = all[row * count(Columns) + column];
                if (place != nullptr) {
                    return {};
                }
                place = &part;
            }
        }
    }
    return all;
}

Frame TableGrid::frame() const noexcept {
    const float left = edges(Columns).front();
    const float top = edges(Rows).front();
    return {left, top, edges(Columns).back() - left, edges(Rows).back() - top};
}

Frame TableGrid::frameOf(const TablePart& part) const noexcept {
    const float left = edges(Columns)[part.begin(Columns)];
    const float top = edges(Rows)[part.begin(Rows)];
    return {left, top, edges(Columns)[part.end(Columns)] - left, edges(Rows)[part.end(Rows)] - top};
}

const TablePart& TableGrid::cellAt(std::size_t row, std::size_t column) const {
    const auto found = std::find_if(parts_.begin(), parts_.end(), [&](const TablePart& part) {
        return part.isCell() && part.begin(Rows) <= row && row < part.end(Rows) && part.begin(Columns) <= column &&
               column < part.end(Columns);
    });
    assert(found != parts_.end());
    return *found;
}

const TablePart& TableGrid::partOf(const Shape& shape) const {
    const auto found = std::find_if(parts_.begin(), parts_.end(),
                                    [&shape](const TablePart& part) { return part.shape.get() == &shape; });
    assert(found != parts_.end());
    return *found;
}

std::vector<ShapePtr> TableGrid::linesOn(const TablePart& cell, PpBorderType side) const {
    const TableAxis across = side == ppBorderLeft || side == ppBorderRight ? Columns : Rows;
    const TableAxis along = across == Columns ? Rows : Columns;
    const bool isFirst = side == ppBorderTop || side == ppBorderLeft;
    const std::size_t edge = isFirst ? cell.begin(across) : cell.end(across);
    const auto isOn = [&](const TablePart& line) {
        if (side == ppBorderDiagonalDown || side == ppBorderDiagonalUp) {
            return line.begins == cell.begins && line.ends == cell.ends &&
                   line.shape->verticalFlip == (side == ppBorderDiagonalUp);
        }
        return line.liesOnEdge(across) && line.begin(across) == edge && line.begin(along) < cell.end(along) &&
               line.end(along) > cell.begin(along);
    };
    std::vector<ShapePtr> lines;
    for (const TablePart& part : parts_) {
        if (!part.isCell() && isOn(part)) {
            lines.push_back(part.shape);
        }
    }
    return lines;
}

void TableGrid::shiftEdges(TableAxis axis, std::size_t first, float points) noexcept {
    for (std::size_t place = first; place < edges(axis).size(); ++place) {
        edges(axis)[place] += points;
    }
}

float TableGrid::leastWidth(std::size_t column) const {
    float least = shortest;
    for (const TablePart& part : parts_) {
        if (part.isCell() && part.begin(Columns) == column && part.end(Columns) == column + 1) {
            least = std::max(least, part.shape->text->layout.marginLeft + part.shape->text->layout.marginRight);
        }
    }
    return toMasterUnits(least);
}

void TableGrid::setLength(TableAxis axis, std::size_t place, float points) {
    const float wanted = toMasterUnits(points);
    if (axis == Rows) {
        table_.leastHeights[place] = wanted;
    } else {
        shiftEdges(Columns, place + 1, std::max(wanted, leastWidth(place)) - length(Columns, place));
    }
    fitRows();
}

void TableGrid::stretch(const Frame& frame) {
    const Frame before = this->frame();
    const auto scaled = [](float length, float from, float to) { return from == 0 ? length : length * to / from; };
    std::vector<float>& columns = edges(Columns);
    float width = 0; // so far, without what narrow columns take beyond
    float shift = 0;
    for (std::size_t column = 0; column < count(Columns); ++column) {
        const float left = toMasterUnits(scaled(width, before.width, frame.width));
        width += columns[column + 1] - columns[column];
        const float wanted = toMasterUnits(scaled(width, before.width, frame.width)) - left;
        columns[column] = toMasterUnits(frame.left) + left + shift;
        shift += std::max(leastWidth(column) - wanted, 0.0F);
    }
    columns.back() = toMasterUnits(frame.left) + toMasterUnits(scaled(width, before.width, frame.width)) + shift;
    for (float& height : table_.leastHeights) {
        height = toMasterUnits(scaled(height, before.height, frame.height));
    }
    shiftEdges(Rows, 0, toMasterUnits(frame.top) - edges(Rows).front());
    fitRows();
}

void TableGrid::fitRows(std::size_t first, std::size_t count) {
    const auto fit = [&](std::size_t row, float height) {
        shiftEdges(Rows, row + 1, std::max({height, table_.leastHeights[row], shortest}) - length(Rows, row));
    };
    const auto needed = [this](const TablePart& cell) { return fittingHeight(*cell.shape->text, frameOf(cell).width); };
    for (std::size_t row = first; row < first + count; ++row) {
        float height = 0;
        for (const TablePart& part : parts_) {
            if (part.isCell() && part.begin(Rows) == row && part.end(Rows) == row + 1) {
                height = std::max(height, needed(part));
            }
        }
        fit(row, height);
    }
    for (const TablePart& part : parts_) {
        const std::size_t last = part.end(Rows) - 1;
        if (part.isCell() && part.begin(Rows) < last && last >= first && last < first + count) {
            const float missing = needed(part) - frameOf(part).height;
            shiftEdges(Rows, last + 1, std::max(missing, 0.0F));
        }
    }
}

void TableGrid::mirror() {
    std::vector<float>& columns = edges(Columns);
    const float sum = columns.front() + columns.back();
    std::reverse(columns.begin(), columns.end());
    std::transform(columns.begin(), columns.end(), columns.begin(), [sum](float edge) { return sum - edge; });
    for (TablePart& part : parts_) {
        std::swap(part.begin(Columns), part.end(Columns));
        part.begin(Columns) = count(Columns) - part.begin(Columns);
        part.end(Columns) = count(Columns) - part.end(Columns);
        if (!part.isCell() && !part.liesOnEdge(Columns) && !part.liesOnEdge(Rows)) {
            part.shape->verticalFlip = !part.shape->verticalFlip;
        }
    }
    table_.isRightToLeft = !table_.isRightToLeft;
}

void TableGrid::commit(const ShapePtr& table) const {
    std::vector<ShapePtr> items;
    items.reserve(parts_.size());
    for (const bool areCells : {true, false}) {
        for (const TablePart& part : parts_) {
            if (part.isCell() == areCells) {
                items.push_back(part.shape);
            }
        }
    }
    const SlidePtr slide = table->slide.lock();
    (void)table->release();
    for (const TablePart& part : parts_) {
        if (part.shape->frame() != frameOf(part)) {
            part.shape->setFrame(frameOf(part));
        }
        if (part.shape->id == 0 && slide) {
            slide->number(*part.shape);
        }
    }
    table->table = table_;
    Shape::adopt(table, std::move(items), frame());
}

} // namespace simulator
