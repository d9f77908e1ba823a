#pragma once

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/Record.h"

#include <algorithm>
#include <cassert>

namespace simulator::drawing {

/// A property of a drawing: a number, and for some a stretch of bytes.
struct Property {
    std::uint16_t id = 0;
    bool isPicture = false; ///< the number is that of a picture
    bool isComplex = false; ///< bytes belong to it
    std::uint32_t value = 0;
    std::string bytes;

    friend bool operator==(const Property&, const Property&) = default;
};

/// What stands before the elements of a property that is an array.
struct ArrayHead {
    explicit ArrayHead(files::ByteReader& in);

    std::size_t count = 0;
    std::size_t elementSize = 0; ///< in bytes
};

/// The properties of one record, in their order.
class PropertyTable {
public:
    PropertyTable() = default;
    /// Raises DamagedPresentation where the record is too short for what it says.
    explicit PropertyTable(const records::Record& record);

    [[nodiscard]] const std::vector<Property>& all() const noexcept { return properties_; }
    [[nodiscard]] const Property* find(std::uint16_t id) const noexcept;
    /// Takes over the properties of another table into this one, which is in the order of ids; where both have one,
    /// the other's, of flags those that count.
    void merge(PropertyTable other);
    /// Puts a property in the place of the one with its id, or where the order of ids wants it.
    void put(Property property);
    void remove(std::uint16_t id) noexcept;
    void set(std::uint16_t id, std::uint32_t value) { put({id, false, false, value, {}}); }
    void setBytes(std::uint16_t id, std::string bytes);
    /// A text with its ending zero.
    void setText(std::uint16_t id, std::u16string_view text);
    /// Sets one bit of a property that is flags, and the bit that makes it count.
    void setFlag(std::uint16_t id, std::uint16_t bit, bool on);

    /// The table as a record of a type.
    [[nodiscard]] records::Record record(std::uint16_t type) const;

private:
    std::vector<Property> properties_;
    std::string rest_; ///< what follows the properties
};

/// A shape's properties, those of all its records as one table in the order of ids.
[[nodiscard]] PropertyTable propertiesOf(const records::Record& shape);

/// A shape's properties with those that stand in for what it does not say: its master's, the document's.
class Looks {
public:
    /// The shape's own table comes first, earlier ones win, and all must outlive this object.
    explicit Looks(std::vector<const PropertyTable*> tables) noexcept : tables_(std::move(tables)) {
        assert(!tables_.empty());
    }

    [[nodiscard]] std::uint32_t number(std::uint16_t id, std::uint32_t otherwise) const noexcept;
    [[nodiscard]] float fixed(std::uint16_t id, float otherwise) const noexcept;  ///< of a 16.16 number
    [[nodiscard]] float points(std::uint16_t id, float otherwise) const noexcept; ///< of a length in EMU
    [[nodiscard]] bool flag(std::uint16_t id, std::uint16_t bit, bool otherwise) const noexcept;
    /// True where some table has a property whose id matches.
    template <typename Match> [[nodiscard]] bool hasAny(const Match& match) const noexcept {
        return std::any_of(tables_.begin(), tables_.end(), [&match](const PropertyTable* table) {
            return std::any_of(table->all().begin(), table->all().end(),
                               [&match](const Property& property) { return match(property.id); });
        });
    }
    /// The shape's own text, up to its zero.
    [[nodiscard]] std::u16string text(std::uint16_t id) const;
    /// The shape's own property; null where it has none.
    [[nodiscard]] const Property* own(std::uint16_t id) const noexcept { return tables_.front()->find(id); }

private:
    std::vector<const PropertyTable*> tables_;
};

} // namespace simulator::drawing
