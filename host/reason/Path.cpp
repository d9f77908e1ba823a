#include "host/reason/Path.h"

#include "automation/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace host::reason {

namespace {

using automation::Value;

/// A collection whose items are places in a presentation.
struct Collection {
    std::u16string_view member;
    std::string_view item;
};

constexpr auto places = std::to_array<Collection>({
    {u"Presentations", "presentation"},
    {u"Slides", "slide"},
    {u"Shapes", "shape"},
    {u"GroupItems", "item"},
    {u"Paragraphs", "paragraph"},
    {u"Words", "word"},
});

const Collection* collectionOf(const Step& step) {
    const auto* const found =
        std::find_if(places.begin(), places.end(), [&](const Collection& each) { return each.member == step.member; });
    return step.arguments.size() != 1 || found == places.end() ? nullptr : found;
}

bool isShape(const Step& step) {
    const Collection* const collection = collectionOf(step);
    return collection != nullptr && (collection->member == u"Shapes" || collection->member == u"GroupItems");
}

std::string stated(const Step& step) {
    std::u16string text = step.member;
    for (std::size_t i = 0; i < step.arguments.size(); ++i) {
        text += (i == 0 ? u"(" : u", ") + step.arguments[i].display();
    }
    return automation::toUtf8(step.arguments.empty() ? text : text + u')');
}

} // namespace

Path Path::to(std::u16string_view member, std::vector<Value> arguments) const {
    Path further = *this;
    for (Value& argument : arguments) {
        argument = argument.is<std::int16_t>() ? Value(argument.to<std::int32_t>()) : argument;
    }
    // What a caller leaves out arrives as missing, or as -1.
    while (!arguments.empty() && (arguments.back().isMissing() || arguments.back() == Value(std::int32_t(-1)))) {
        arguments.pop_back();
    }
    const bool isItem = (member == u"Item" || member.empty()) && !arguments.empty();
    if (isItem && !steps_.empty() && steps_.back().arguments.empty()) {
        further.steps_.back().arguments = std::move(arguments);
    } else {
        further.steps_.push_back({std::u16string(member), std::move(arguments)});
    }
    return further;
}

Path Path::collection() const {
    Path whole = *this;
    if (!whole.steps_.empty()) {
        whole.steps_.back().arguments.clear();
    }
    return whole;
}

Path Path::owner() const {
    Path above = *this;
    if (!above.steps_.empty()) {
        above.steps_.pop_back();
    }
    return above;
}

std::u16string_view Path::member() const noexcept {
    return steps_.empty() ? std::u16string_view() : steps_.back().member;
}

std::int32_t Path::item() const {
    const bool takesItem = !steps_.empty() && collectionOf(steps_.back()) != nullptr;
    const Value* const number = takesItem ? &steps_.back().arguments.front() : nullptr;
    return number == nullptr || number->is<std::u16string>() ? 0 : number->to<std::int32_t>();
}

std::size_t Path::stepsToPlace() const {
    const auto last = std::find_if(steps_.rbegin(), steps_.rend(), collectionOf);
    return static_cast<std::size_t>(steps_.rend() - last);
}

std::string Path::place(const Surname& surname) const {
    std::string text;
    for (std::size_t i = 0; i < stepsToPlace(); ++i) {
        if (const Collection* const collection = collectionOf(steps_[i])) {
            text += (text.empty() ? "" : ", ") + std::string(collection->item) + ' ' +
                    automation::toUtf8(steps_[i].arguments.front().display());
            text += surname && isShape(steps_[i]) ? surname(first(i + 1)) : "";
        }
    }
    return text;
}

std::string Path::behind() const {
    // A text is spoken of as its shape's.
    constexpr auto unsaid = std::to_array<std::u16string_view>({u"TextFrame", u"TextRange"});
    std::string text;
    for (std::size_t i = stepsToPlace(); i < steps_.size(); ++i) {
        const bool isUnsaid = std::find(unsaid.begin(), unsaid.end(), steps_[i].member) != unsaid.end();
        if (!steps_[i].member.empty() && (!isUnsaid || i + 1 == steps_.size())) {
            text += (text.empty() ? "" : ".") + stated(steps_[i]);
        }
    }
    return text;
}

std::string Path::display() const {
    return place() + ": " + behind();
}

Path Path::first(std::size_t steps) const {
    Path way;
    way.steps_.assign(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(steps));
    return way;
}

Path Path::shape() const {
    return first(static_cast<std::size_t>(steps_.rend() - std::find_if(steps_.rbegin(), steps_.rend(), isShape)));
}

Path Path::upTo(std::u16string_view collection) const {
    const auto found = std::find_if(steps_.begin(), steps_.end(), [&](const Step& step) {
        return step.member == collection && step.arguments.size() == 1;
    });
    return found == steps_.end() ? Path() : first(static_cast<std::size_t>(found - steps_.begin()) + 1);
}

bool Path::isBelow(const Path& other) const {
    return other.steps_.size() <= steps_.size() && std::equal(other.steps_.begin(), other.steps_.end(), steps_.begin());
}

std::size_t Path::Hash::operator()(const Path& path) const {
    constexpr std::size_t factor = 31;
    const std::hash<std::u16string> hashOf;
    std::size_t hash = 0;
    for (const Step& step : path.steps_) {
        hash = hash * factor + hashOf(step.member);
        for (const Value& argument : step.arguments) {
            hash = hash * factor + hashOf(argument.display());
        }
    }
    return hash;
}

} // namespace host::reason
