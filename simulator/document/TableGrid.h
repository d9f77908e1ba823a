#pragma once

#include "simulator/document/Shape.h"

#include <array>

namespace simulator {

/// The two ways in which a table is divided.
enum class TableAxis { Columns, Rows };

/// A cell or a border of a table, and the edges between which it lies; edges count from 0 at the left and the top.
struct TablePart {
    ShapePtr shape;
    std::array<std::size_t, 2> begins{};
    std::array<std::size_t, 2> ends{};

    [[nodiscard]] std::size_t begin(TableAxis axis) const noexcept {
        return axis == TableAxis::Columns ? begins[0] : begins[1];
    }
    [[nodiscard]] std::size_t end(TableAxis axis) const noexcept {
        return axis == TableAxis::Columns ? ends[0] : ends[1];
    }
    [[nodiscard]] std::size_t& begin(TableAxis axis) noexcept {
        return axis == TableAxis::Columns ? begins[0] : begins[1];
    }
    [[nodiscard]] std::size_t& end(TableAxis axis) noexcept { return axis == TableAxis::Columns ? ends[0] : ends[1]; }

    [[nodiscard]] bool isCell() const noexcept { return shape->type != msoLine; }
    /// True for a line on an edge of columns or rows.
    [[nodiscard]] bool liesOnEdge(TableAxis axis) const noexcept { return begin(axis) == end(axis); }
    /// True where it lies wholly within another.
    [[nodiscard]] bool isWithin(const TablePart& other) const noexcept;
};

/// Rows and columns of a table, found from where its cells lie. What is changed here reaches the table by `commit`.
class TableGrid {
public:
    /// Of rows, and of columns; damaged files say anything.
    static constexpr std::size_t most = 256;

    TableGrid(const std::vector<ShapePtr>& items, Table table);
    /// That of a shape that is a table.
    explicit TableGrid(const Shape& table) : TableGrid(table.items(), *table.table) {}

    /// True for the items of a table: lines, and cells with text that cover every place in it once. All else here is
    /// for such a table.
    [[nodiscard]] bool isWhole() const;

    /// What the table says of itself.
    [[nodiscard]] const Table& table() const noexcept { return table_; }
    /// The number of columns or rows.
    [[nodiscard]] std::size_t count(TableAxis axis) const noexcept { return edges(axis).size() - 1; }
    [[nodiscard]] float length(TableAxis axis, std::size_t place) const noexcept {
        return edges(axis)[place + 1] - edges(axis)[place];
    }
    /// Where a column stands from the left that is so many from where the table begins; a row, from the top.
    [[nodiscard]] std::size_t onSlide(TableAxis axis, std::size_t place) const noexcept {
        return axis == TableAxis::Columns && table_.isRightToLeft ? count(axis) - 1 - place : place;
    }
    [[nodiscard]] Frame frame() const noexcept;
    /// The cell that covers a place, from 0.
    [[nodiscard]] const TablePart& cellAt(std::size_t row, std::size_t column) const;
    [[nodiscard]] const TablePart& partOf(const Shape& shape) const;
    /// The lines on one side of a cell, or through it.
    [[nodiscard]] std::vector<ShapePtr> linesOn(const TablePart& cell, PpBorderType side) const;

    /// Gives every side of a cell between two edges a line of its own; those that have none get one, which is seen or
    /// not. False where nothing is to be done.
    bool divideBorders(bool newAreVisible);
    /// Puts a line through a cell, from corner to corner, which is not seen.
    void addDiagonal(const TablePart& cell, PpBorderType diagonal);

    /// Puts a row or column at a place, as long and with the format of that at the place of `model`, its neighbour.
    void insert(TableAxis axis, std::size_t place, std::size_t model);
    void erase(TableAxis axis, std::size_t place);
    /// Makes one cell of all that lie between two, in the format of the first. False where others reach out from there.
    bool merge(const TablePart& one, const TablePart& other);
    /// Makes several cells of one, the first with its text. False where they would be less than a point long.
    bool split(const TablePart& cell, std::size_t rows, std::size_t columns);

    /// Gives a row or column a length, at least what its cells need; what lies behind it moves.
    void setLength(TableAxis axis, std::size_t place, float points);
    /// Puts the edges into another frame, as far as the cells let it.
    void stretch(const Frame& frame);
    /// Makes so many rows as high as the text of their cells needs, and at least as high as the table says.
    void fitRows(std::size_t first, std::size_t count);
    void fitRows() { fitRows(0, count(TableAxis::Rows)); }
    /// Turns left and right about, and says so of the table.
    void mirror();

    /// Gives the table its cells and borders, in their places.
    void commit(const ShapePtr& table) const;

private:
    [[nodiscard]] const std::vector<float>& edges(TableAxis axis) const noexcept {
        return axis == TableAxis::Columns ? edges_[0] : edges_[1];
    }
    [[nodiscard]] std::vector<float>& edges(TableAxis axis) noexcept {
        return axis == TableAxis::Columns ? edges_[0] : edges_[1];
    }
    /// Edges that are no further apart are one, in points: files round what a table is scaled by.
    static constexpr float tolerance = 0.25F;

    [[nodiscard]] std::size_t edgeNear(TableAxis axis, float points) const noexcept;
    /// The cells that cover the places, row by row, null where none does; nothing where some cover each other.
    [[nodiscard]] std::vector<const TablePart*> cells() const;
    [[nodiscard]] Frame frameOf(const TablePart& part) const noexcept;
    /// Puts an edge where none is; parts around it reach across.
    void putEdge(TableAxis axis, float points);
    /// Moves the edges from a number on.
    void shiftEdges(TableAxis axis, std::size_t first, float points) noexcept;
    void addLine(const TablePart& place, bool isVisible);
    [[nodiscard]] float leastWidth(std::size_t column) const;

    std::array<std::vector<float>, 2> edges_;
    std::vector<TablePart> parts_;
    Table table_;
};

} // namespace simulator
