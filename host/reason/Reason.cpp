#include "host/reason/Reason.h"

#include "automation/Text.h"
#include "host/language/Operators.h"
#include "host/language/Words.h"
#include "host/reason/Listing.h"
#include "host/reason/Told.h"
#include "host/reason/Topic.h"

#include <algorithm>
#include <functional>
#include <unordered_set>

namespace host::reason {

namespace {

using automation::Border;
using Accesses = std::vector<Access>;
using Delivered = std::map<std::string, automation::Value>;

/// More than so many values are too many for a sentence.
constexpr std::size_t most = 12;

bool isText(const Access& access) {
    return access.path.member() == u"Text" && access.value.is<std::u16string>();
}

/// A word of a text, which has a blank behind it where another follows.
bool isWord(const Access& access) {
    return isText(access) && access.path.owner().member() == u"Words";
}

/// Those that are wanted, each value as it was read last.
Accesses filtered(const Accesses& all, const std::function<bool(const Access&)>& isWanted) {
    Accesses wanted;
    std::unordered_set<std::reference_wrapper<const Path>, Path::Hash, std::equal_to<>> known;
    std::for_each(all.rbegin(), all.rend(), [&](const Access& access) {
        if (isWanted(access) && known.insert(access.path).second) {
            wanted.push_back(access);
        }
    });
    std::reverse(wanted.begin(), wanted.end());
    return wanted;
}

class Finder {
public:
    Finder(const Trail& trail, const Reading& reading, const Delivered& delivered)
        : trail_(trail), reading_(reading), delivered_(delivered), topic_(reading.meaning), marks_(trail.marks()) {}

    [[nodiscard]] std::string reason() const {
        if (trail_.accesses().empty()) {
            return {};
        }
        const Access& last = trail_.accesses().back();
        if (last.border != Border::Automation) {
            return ofSystem();
        }
        if (reading_.error || last.error) {
            return ofError();
        }
        return reading_.erreurGenerale ? ofGeneralCode() : ofLetter();
    }

private:
    [[nodiscard]] std::string ofSystem() const {
        const Accesses& all = trail_.accesses();
        const Border border = all.back().border;
        const auto first =
            std::find_if(all.rbegin(), all.rend(), [&](const Access& access) { return access.border != border; });
        const Accesses last(first.base(), all.end());
        return border == Border::File ? said(last) : said({last.back()});
    }

    [[nodiscard]] std::string ofError() const {
        const Accesses& all = trail_.accesses();
        const auto failed =
            std::find_if(all.rbegin(), all.rend(), [](const Access& access) { return access.error.has_value(); });
        const bool isFault = !reading_.error || reading_.error->number() != 0;
        return isFault && failed != all.rend() ? said({*failed}) : "";
    }

    [[nodiscard]] std::string ofGeneralCode() const {
        const Accesses& all = trail_.accesses();
        if (all.back().isMark()) {
            return slidesIn(trail_);
        }
        if (topic_.isOfSlides()) {
            return "The slides were not looked at: this is left from a check before.";
        }
        const auto count = std::find_if(all.rbegin(), all.rend(),
                                        [](const Access& access) { return access.path.member() == u"Count"; });
        return count == all.rbegin() ? said({*count}) : said(Accesses(count.base(), all.end()));
    }

    [[nodiscard]] std::string ofLetter() const {
        const Access& last = trail_.accesses().back();
        if (std::string quoted = ofQuoted(); !quoted.empty()) {
            return quoted;
        }
        std::string shapes = shapesOn(slideOf(last), trail_, topic_);
        if (topic_.isOfMarks() && !shapes.empty()) {
            return shapes;
        }
        Accesses named = ofNamedMembers();
        const bool isSeen = last.isMark() || std::any_of(named.begin(), named.end(), [&](const Access& access) {
                                return access.path == last.path;
                            });
        if (!named.empty()) {
            named.insert(named.end(), isSeen ? 0 : 1, last);
            return said(named);
        }
        const bool isOfShapes = (last.isMark() && !last.path.topShape().isEmpty()) || topic_.isOfNew();
        return isOfShapes && !shapes.empty() ? shapes : said({last});
    }

    /// The slide that the module has looked at last.
    [[nodiscard]] Path slideOf(const Access& last) const {
        const Accesses& all = trail_.accesses();
        const auto onSlide = std::find_if(all.rbegin(), all.rend(),
                                          [](const Access& access) { return !access.path.topShape().isEmpty(); });
        return (onSlide == all.rend() ? last : *onSlide).path.slide();
    }

    /// Texts that hold, or are to hold, what the meaning quotes.
    [[nodiscard]] std::string ofQuoted() const {
        const Accesses texts = filtered(trail_.accesses(), isText);
        for (const std::string& quoted : texts.empty() ? std::vector<std::string>() : topic_.quoted()) {
            const std::u16string wanted = automation::fromUtf8(quoted);
            const Accesses holding = filtered(texts, [&](const Access& access) {
                const auto text = access.value.to<std::u16string>();
                return isWord(access) ? text == wanted || text == wanted + u' '
                                      : text.find(wanted) != std::u16string::npos;
            });
            if (!holding.empty()) {
                return said(holding);
            }
            if (texts.size() > most) {
                return "None of the " + std::to_string(texts.size()) + " words read is \"" + quoted + "\".";
            }
        }
        return topic_.quoted().empty() || texts.empty() ? "" : said({texts.back()});
    }

    /// What the meaning names, of the shape that it names where it names one.
    [[nodiscard]] Accesses ofNamedMembers() const {
        const auto isNamed = [&](const Access& access) {
            return !access.isMark() && (access.path.member() != u"Count" || !access.path.place().empty()) &&
                   topic_.names(access.path.member()) && (!topic_.isOfNew() || isUnmarked(access.path.shape()));
        };
        const Accesses named = filtered(trail_.accesses(), isNamed);
        const Accesses ofMarked =
            filtered(named, [&](const Access& access) { return topic_.namesMark(markOf(access.path.shape())); });
        const Accesses& wanted = ofMarked.empty() ? named : ofMarked;
        const auto constant = [&](const Access& access) {
            const std::string value = told(access.path, access.value);
            return value.starts_with("mso") || value.starts_with("pp") ? value : std::string();
        };
        const bool namesConstant = std::any_of(
            wanted.begin(), wanted.end(), [&](const Access& access) { return topic_.namesConstant(constant(access)); });
        return filtered(wanted, [&](const Access& access) {
            const std::string value = constant(access);
            return !namesConstant || value.empty() || topic_.namesConstant(value);
        });
    }

    /// True where the module has looked for a mark of the shape, and found none.
    [[nodiscard]] bool isUnmarked(const Path& shape) const {
        return std::any_of(marks_.begin(), marks_.end(),
                           [&](const Mark& mark) { return mark.bearer == shape && mark.identity.empty(); });
    }

    [[nodiscard]] std::string markOf(const Path& shape) const {
        const auto mark = std::find_if(marks_.begin(), marks_.end(),
                                       [&](const Mark& each) { return !shape.isEmpty() && each.bearer == shape; });
        return mark == marks_.end() ? std::string() : mark->identity;
    }

    [[nodiscard]] std::string what(const Access& access) const {
        if (access.border == Border::File) {
            // The pattern that is looked for comes first, then the attributes.
            const std::string call = access.path.behind();
            const std::string name = call.substr(call.find('"'), call.rfind('"') + 1 - call.find('"'));
            const auto found = access.value.to<std::u16string>();
            return found.empty() ? "there is no file " + name : "the first file " + name + " is " + inQuotes(found);
        }
        if (access.isMark()) {
            const auto mark = access.value.to<std::u16string>();
            const std::string holder = access.path.owner().behind();
            return holder + (holder.empty() ? "it" : "") +
                   (mark.empty() ? " has no mark" : " is marked " + automation::toUtf8(mark));
        }
        const std::string value = access.error ? " has raised it" : " is " + told(access.path, access.value);
        return access.path.behind() + value + asDelivered(access);
    }

    /// ` (delivered: 481.625)` where the shape of this mark had another value then, and the meaning speaks of a change.
    [[nodiscard]] std::string asDelivered(const Access& access) const {
        const std::string mark = topic_.isOfChange() ? markOf(access.path.owner()) : "";
        for (const Mark& given : trail_.given()) {
            const Path path = given.bearer.to(access.path.member());
            const auto value = given.identity == mark && !given.bearer.topShape().isEmpty()
                                   ? delivered_.find(path.display())
                                   : delivered_.end();
            if (value != delivered_.end() && !access.error && !language::areEqual(value->second, access.value)) {
                return " (delivered: " + told(path, value->second) + ")";
            }
        }
        return {};
    }

    /// ` (ZOR4)`, ` (no mark)`, or nothing where nobody has asked.
    [[nodiscard]] std::string surname(const Path& shape) const {
        const std::string mark = markOf(shape);
        return !mark.empty() ? " (" + mark + ")" : isUnmarked(shape) ? " (no mark)" : "";
    }

    /// Where a value was read, in a sentence, and for a row of values of which places else: `words 2 and 3`.
    struct Said {
        std::string place;
        std::string what;
    };

    /// The values in sentences, one for each place; equal ones of one row of places are said together.
    [[nodiscard]] std::string said(const Accesses& accesses) const {
        std::string text;
        Said before;
        for (std::size_t i = 0; i < accesses.size() && i < most; ++i) {
            const Said now{accesses[i].path.place([&](const Path& shape) { return surname(shape); }),
                           what(accesses[i])};
            const bool isRow = !now.place.empty() && now.what == before.what && stem(now.place) == stem(before.place);
            if (isRow) {
                text.insert(text.size() - now.what.size() - 2, ", " + now.place.substr(stem(now.place).size()));
            } else if (!text.empty() && now.place == before.place) {
                text += ", " + now.what;
            } else {
                text += (text.empty() ? "" : ". ") + startOf(now);
            }
            before = now;
        }
        const std::size_t rest = accesses.size() - std::min(most, accesses.size());
        return text + (rest == 0 ? "." : ", and " + counted(rest, "value") + " more.");
    }

    static std::string startOf(const Said& one) {
        std::string text = sentence(one.place.empty() ? one.what : one.place + ": " + one.what);
        return text.substr(0, text.size() - (one.what.ends_with('.') ? 0 : 1));
    }

    /// A place without its last number.
    static std::string stem(const std::string& place) {
        return place.substr(0, place.find_last_not_of("0123456789") + 1);
    }

    const Trail& trail_;
    const Reading& reading_;
    const Delivered& delivered_;
    Topic topic_;
    std::vector<Mark> marks_;
};

} // namespace

std::string reasonOf(const Trail& trail, const Reading& reading, const Delivered& delivered) {
    return Finder(trail, reading, delivered).reason();
}

} // namespace host::reason
