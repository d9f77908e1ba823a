#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

/// HeaderFooter: a header, a footer, the date or the number on some slides or a master. It reads that of the first.
class HeaderFooterObject final : public PowerPointObject {
public:
    HeaderFooterObject(ProcessPtr process, SlideSet sheets, HeaderFooter HeadersFooters::*part)
        : PowerPointObject(std::move(process)), sheets_(std::move(sheets)), part_(part) {}

    [[nodiscard]] const automation::MemberTable& members() const override;
    /// HeadersFooters.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    /// True for the same thing on the same sheets.
    [[nodiscard]] bool isSame(const Object& other) const noexcept override;

    [[nodiscard]] MsoTriState visible() const;
    void setVisible(MsoTriState visible);
    /// Of the date, the one that stays as it is. Raises an invalid request for a number.
    [[nodiscard]] std::u16string text() const;
    void setText(const std::u16string& text);
    /// True where the date is today's. Raises an invalid request for what is no date, as `format` does.
    [[nodiscard]] MsoTriState useFormat() const;
    void setUseFormat(MsoTriState uses);
    /// PpDateTimeFormat, 1 to 13.
    [[nodiscard]] std::int32_t format() const;
    void setFormat(std::int32_t format);

private:
    [[nodiscard]] const HeadersFooters& all() const;
    template <typename Change> void changeAll(const Change& change) const;
    void demandDate(std::u16string_view member) const;
    void demandText() const;

    SlideSet sheets_;
    HeaderFooter HeadersFooters::*part_;
};

} // namespace simulator
