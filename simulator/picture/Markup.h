#pragma once

#include "automation/Unmoved.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Pictures of slides as SVG. Nothing here knows of automation.
namespace simulator::picture {

/// Writes elements of XML, well formed whatever the texts hold: what has a meaning is escaped, characters that XML does
/// not allow are left out.
class Markup {
public:
    using Attributes = std::vector<std::pair<std::string_view, std::string>>;

    /// An element that is open until the end of the scope.
    class Element : automation::Unmoved {
    public:
        Element(Markup& markup, std::string_view name) noexcept : markup_(markup), name_(name) {}
        ~Element();

    private:
        Markup& markup_;
        std::string_view name_;
    };

    /// `name` must outlive the element.
    [[nodiscard]] Element element(std::string_view name, const Attributes& attributes = {});
    /// An element without content.
    void leaf(std::string_view name, const Attributes& attributes);
    /// An element that holds text in UTF-8 and nothing else.
    void leaf(std::string_view name, const Attributes& attributes, std::string_view text);
    void text(std::string_view utf8);
    /// Markup as it is: a declaration, a style sheet, another picture.
    void raw(std::string_view markup) { out_ += markup; }

    /// What has been written since it was asked for last.
    [[nodiscard]] std::string take() { return std::exchange(out_, {}); }

private:
    void begin(std::string_view name, const Attributes& attributes);

    std::string out_;
};

/// A text as XML takes it, between elements and within quotation marks.
[[nodiscard]] std::string escaped(std::string_view utf8);

/// A length or another number, to a hundredth at most.
[[nodiscard]] std::string number(float value);

} // namespace simulator::picture
