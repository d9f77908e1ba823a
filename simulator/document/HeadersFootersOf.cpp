#include "simulator/document/HeadersFootersOf.h"

#include "simulator/document/Masters.h"

namespace simulator {

namespace {

/// True for the sheets that can have headers and footers of their own.
bool mayHaveOwn(SheetKind kind) noexcept {
    return kind == SheetKind::Slide || kind == SheetKind::TitleMaster;
}

} // namespace

const HeadersFooters& headersFootersOf(const Presentation& presentation, const Slide& sheet) {
    if (isPage(sheet.kind)) {
        return presentation.onPages;
    }
    if (mayHaveOwn(sheet.kind) && sheet.headersFooters) {
        return *sheet.headersFooters;
    }
    const SlidePtr master = sheet.kind == SheetKind::Slide ? findMaster(presentation, sheet) : nullptr;
    return master && master->headersFooters ? *master->headersFooters : presentation.onSlides;
}

HeadersFooters& ownHeadersFooters(Presentation& presentation, Slide& sheet) {
    if (!mayHaveOwn(sheet.kind)) {
        return isPage(sheet.kind) ? presentation.onPages : presentation.onSlides;
    }
    if (!sheet.headersFooters) {
        sheet.headersFooters = HeadersFooters(headersFootersOf(presentation, sheet));
    }
    return *sheet.headersFooters;
}

void clearHeadersFooters(Presentation& presentation, Slide& sheet) {
    if (mayHaveOwn(sheet.kind)) {
        sheet.headersFooters.reset();
    } else {
        ownHeadersFooters(presentation, sheet) = {};
    }
}

} // namespace simulator
