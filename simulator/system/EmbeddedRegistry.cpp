#include "simulator/system/EmbeddedRegistry.h"

#include "automation/Text.h"

#include <algorithm>

namespace simulator {

namespace {

constexpr std::uint32_t queryValue = 1;
constexpr std::uint32_t setValue = 2;

/// The form in which keys are compared: lower case, no backslash at the end.
std::u16string pathKey(std::u16string_view path) {
    while (path.ends_with(u'\\')) {
        path.remove_suffix(1);
    }
    return automation::lowerCase(path);
}

auto named(std::u16string_view name) {
    return [name](const auto& value) { return automation::equalIgnoringCase(value.name, name); };
}

template <typename Value> void assign(std::vector<Value>& values, std::u16string_view name, std::u16string data) {
    const auto found = std::find_if(values.begin(), values.end(), named(name));
    if (found == values.end()) {
        values.push_back({std::u16string(name), std::move(data)});
    } else {
        found->data = std::move(data);
    }
}

} // namespace

platform::Registry::Status EmbeddedRegistry::create(std::u16string_view path, Key& key) {
    make(path);
    return give(path, queryValue | setValue, key);
}

platform::Registry::Status EmbeddedRegistry::open(std::u16string_view path, std::uint32_t access, Key& key) {
    return give(path, access, key);
}

platform::Registry::Status EmbeddedRegistry::enumerate(Key key, std::uint32_t index, std::size_t bufferLength,
                                                       std::u16string& name) {
    Status status = success;
    const Content* const content = reach(key, queryValue, status);
    if (content == nullptr) {
        return status;
    }
    if (index >= content->values.size()) {
        return noMoreItems;
    }
    const std::u16string& found = content->values[index].name;
    if (found.size() >= bufferLength) {
        return moreData;
    }
    name = found;
    return success;
}

platform::Registry::Status EmbeddedRegistry::query(Key key, std::u16string_view name, std::size_t& length,
                                                   std::u16string& data) {
    Status status = success;
    const Content* const content = reach(key, queryValue, status);
    if (content == nullptr) {
        return status;
    }
    const auto found = std::find_if(content->values.begin(), content->values.end(), named(name));
    if (found == content->values.end()) {
        return fileNotFound;
    }
    const bool fits = found->data.size() <= length;
    length = found->data.size();
    if (!fits) {
        return moreData;
    }
    data = found->data;
    return success;
}

platform::Registry::Status EmbeddedRegistry::set(Key key, std::u16string_view name, std::u16string_view data,
                                                 std::size_t length) {
    Status status = success;
    Content* const content = reach(key, setValue, status);
    if (content == nullptr) {
        return status;
    }
    std::u16string stored(data.substr(0, length));
    const bool isNulNext = length == data.size() && !stored.empty() && stored.back() != u'\0';
    if (length > data.size() || isNulNext) {
        stored += u'\0';
    }
    assign(content->values, name, std::move(stored));
    return success;
}

void EmbeddedRegistry::close(Key key) {
    handles_.erase(key);
}

std::optional<std::u16string> EmbeddedRegistry::text(std::u16string_view path, std::u16string_view name) const {
    const auto content = keys_.find(pathKey(path));
    if (content == keys_.end()) {
        return std::nullopt;
    }
    const auto& values = content->second.values;
    const auto found = std::find_if(values.begin(), values.end(), named(name));
    if (found == values.end()) {
        return std::nullopt;
    }
    std::u16string data = found->data;
    if (data.ends_with(u'\0')) {
        data.pop_back();
    }
    return data;
}

void EmbeddedRegistry::setText(std::u16string_view path, std::u16string_view name, std::u16string_view text) {
    assign(make(path).values, name, std::u16string(text) + u'\0');
}

void EmbeddedRegistry::remove(std::u16string_view path, std::u16string_view name) {
    if (const auto content = keys_.find(pathKey(path)); content != keys_.end()) {
        std::erase_if(content->second.values, named(name));
    }
}

void EmbeddedRegistry::deny(std::u16string_view path, bool denied) {
    make(path).denied = denied;
}

EmbeddedRegistry::Content& EmbeddedRegistry::make(std::u16string_view path) {
    const std::u16string key = pathKey(path);
    for (std::size_t end = key.find(u'\\'); end != std::u16string::npos; end = key.find(u'\\', end + 1)) {
        keys_.try_emplace(key.substr(0, end));
    }
    return keys_[key];
}

platform::Registry::Status EmbeddedRegistry::give(std::u16string_view path, std::uint32_t access, Key& key) {
    const auto content = keys_.find(pathKey(path));
    if (content == keys_.end()) {
        return fileNotFound;
    }
    if (content->second.denied) {
        return accessDenied;
    }
    lastHandle_ += 4;
    key = static_cast<Key>(lastHandle_);
    handles_.emplace(key, Handle{content->first, access});
    return success;
}

EmbeddedRegistry::Content* EmbeddedRegistry::reach(Key key, std::uint32_t access, Status& status) {
    const auto handle = handles_.find(key);
    if (handle == handles_.end()) {
        status = invalidHandle;
        return nullptr;
    }
    if ((handle->second.access & access) == 0) {
        status = accessDenied;
        return nullptr;
    }
    return &keys_[handle->second.path];
}

} // namespace simulator
