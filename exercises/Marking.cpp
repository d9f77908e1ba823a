#include "exercises/API.h"

#include "automation/Integer.h"
#include "automation/Text.h"

namespace exercises {

using automation::decimal;
using automation::narrow;

std::u16string API::identity(std::int32_t number) {
    return std::u16string(Prefixe) + decimal(number);
}

std::int16_t API::MarqueDiapositives(const ppt::Application& application) {
    const auto count = narrow<std::int16_t>(application.ActivePresentation().Slides().Count());
    for (std::int32_t i = 1; i <= count; ++i) {
        application.ActivePresentation().Slides().Item(static_cast<std::int16_t>(i)).Tags().Add(Identite, identity(i));
    }
    const auto result = narrow<std::int16_t>(application.ActivePresentation().Slides().Count());
    NbDiapositives = narrow<std::int16_t>(application.ActivePresentation().Slides().Count());
    return result;
}

void API::MarqueFormes(std::int16_t slide, bool recursive, const ppt::Application& application) {
    const auto shape = [&](std::int32_t j) {
        return application.ActivePresentation().Slides().Item(slide).Shapes().Item(static_cast<std::int16_t>(j));
    };
    const auto count = narrow<std::int16_t>(application.ActivePresentation().Slides().Item(slide).Shapes().Count());
    for (std::int32_t j = 1; j <= count; ++j) {
        shape(j).Tags().Add(Identite, identity(j));
        if (recursive && shape(j).Type() == ppt::msoGroup) {
            MarqueGroupe(shape(j), decimal(j), 1);
        }
    }
}

void API::MarqueGroupe(const ppt::Shape& group, const std::u16string& path, std::int16_t level) {
    const auto item = [&](std::int32_t k) { return group.GroupItems().Item(static_cast<std::int16_t>(k)); };
    const auto count = narrow<std::int16_t>(group.GroupItems().Count());
    for (std::int32_t k = 1; k <= count; ++k) {
        item(k).Tags().Add(Identite, decimal(level) + identity(k) + u":" + path);
        if (item(k).Type() == ppt::msoGroup) {
            MarqueGroupe(item(k), path + u"," + decimal(k), narrow<std::int16_t>(level + 1));
        }
    }
}

} // namespace exercises
