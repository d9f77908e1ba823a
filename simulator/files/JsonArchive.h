#pragma once

#include "automation/Text.h"
#include "simulator/files/PresentationFormat.h"

#include <nlohmann/json.hpp>

#include <limits>
#include <optional>
#include <vector>

/// Values as JSON and back. A type with members is described once, for both directions, by a function
/// `describe(archive, value)` that names each member: `archive("name", value.member)`.
namespace simulator::json {

using Json = nlohmann::json;

template <typename T> [[nodiscard]] Json write(const T& value);
template <typename T> void read(const Json& json, T& value);

/// Visits the members of a value to write them.
class Writer {
public:
    template <typename T> void operator()(const char* name, const T& member) { object_[name] = write(member); }
    [[nodiscard]] Json take() noexcept { return std::move(object_); }

private:
    Json object_ = Json::object();
};

/// Visits the members of a value to read them; raises DamagedPresentation where one is missing.
class Reader {
public:
    explicit Reader(const Json& object) noexcept : object_(object) {}

    template <typename T> void operator()(const char* name, T& member) const {
        const auto found = object_.find(name);
        if (found == object_.end()) {
            throw DamagedPresentation(std::string("missing: ") + name);
        }
        read(*found, member);
    }

private:
    const Json& object_;
};

inline void require(bool condition, const char* what) {
    if (!condition) {
        throw DamagedPresentation(what);
    }
}

/// Texts are UTF-8; one that UTF-8 cannot hold is a list of its units.
inline Json writeText(const std::u16string& text) {
    std::string utf8 = automation::toUtf8(text);
    return automation::fromUtf8(utf8) == text ? Json(std::move(utf8))
                                              : Json(std::vector<unsigned>(text.begin(), text.end()));
}

inline void readText(const Json& json, std::u16string& text) {
    if (json.is_string()) {
        text = automation::fromUtf8(json.get_ref<const std::string&>());
        return;
    }
    require(json.is_array(), "a text is expected");
    text.clear();
    for (const Json& unit : json) {
        require(unit.is_number_unsigned() && unit.get<std::uint64_t>() <= 0xFFFF, "a character is expected");
        text += static_cast<char16_t>(unit.get<std::uint64_t>());
    }
}

template <typename T> [[nodiscard]] T readInteger(const Json& json) {
    require(json.is_number_integer(), "a whole number is expected");
    const bool beyond =
        json.is_number_unsigned() && json.get<std::uint64_t>() > std::numeric_limits<std::int64_t>::max();
    const auto number = json.get<std::int64_t>();
    require(!beyond && std::in_range<T>(number), "a number is out of range");
    return static_cast<T>(number);
}

template <typename T> inline constexpr bool isOptional = false;
template <typename T> inline constexpr bool isOptional<std::optional<T>> = true;

template <typename T>
concept List = requires(const T& list) {
    list.begin();
    list.size();
};

template <typename T> void readList(const Json& json, T& list) {
    require(json.is_array(), "a list is expected");
    if constexpr (requires { list.resize(0); }) {
        list.resize(json.size());
    }
    require(list.size() == json.size(), "a list has the wrong length");
    std::size_t place = 0;
    for (auto& element : list) {
        read(json[place++], element);
    }
}

template <typename T> Json write(const T& value) {
    if constexpr (std::is_enum_v<T>) {
        return Json(static_cast<std::int32_t>(value));
    } else if constexpr (std::is_arithmetic_v<T>) {
        return Json(value);
    } else if constexpr (std::is_same_v<T, std::u16string>) {
        return writeText(value);
    } else if constexpr (isOptional<T>) {
        return value ? write(*value) : Json();
    } else if constexpr (List<T>) {
        Json list = Json::array();
        for (const auto& element : value) {
            list.push_back(write(element));
        }
        return list;
    } else {
        Writer writer;
        describe(writer, value);
        return writer.take();
    }
}

template <typename T> void read(const Json& json, T& value) {
    if constexpr (std::is_enum_v<T>) {
        value = static_cast<T>(readInteger<std::int32_t>(json));
    } else if constexpr (std::is_same_v<T, bool>) {
        require(json.is_boolean(), "true or false is expected");
        value = json.get<bool>();
    } else if constexpr (std::is_floating_point_v<T>) {
        require(json.is_number(), "a number is expected");
        value = json.get<T>();
    } else if constexpr (std::is_integral_v<T>) {
        value = readInteger<T>(json);
    } else if constexpr (std::is_same_v<T, std::u16string>) {
        readText(json, value);
    } else if constexpr (isOptional<T>) {
        value.reset();
        if (!json.is_null()) {
            read(json, value.emplace());
        }
    } else if constexpr (List<T>) {
        readList(json, value);
    } else {
        require(json.is_object(), "an object is expected");
        const Reader reader(json);
        describe(reader, value);
    }
}

} // namespace simulator::json
