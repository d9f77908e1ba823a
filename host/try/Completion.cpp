#include "host/try/Completion.h"

#include "automation/MemberTable.h"
#include "automation/Text.h"
#include "host/language/Constants.h"
#include "host/language/Parser.h"

namespace host {

namespace {

using automation::ObjectPtr;
using automation::Published;
using language::Expression;
using language::Reference;

bool isPartOfName(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

/// Where the expression begins that ends right before `end`: names, dots and what stands in parentheses.
std::size_t startOfChain(const std::string& line, std::size_t end) {
    int open = 0;
    while (end > 0) {
        const char c = line[end - 1];
        open += c == ')' ? 1 : c == '(' ? -1 : 0;
        if (open < 0 || (open == 0 && c != '(' && c != '.' && !isPartOfName(c))) {
            break;
        }
        --end;
    }
    return end;
}

/// True where reading the expression reads properties of published objects only.
bool isOfProperties(const Expression& expression, OpenQuestion& open) {
    const auto* const reference = std::get_if<Reference>(&expression.node);
    if (reference == nullptr) {
        return std::holds_alternative<language::Literal>(expression.node);
    }
    const auto isProperty = [&](const Expression& argument) { return isOfProperties(argument, open); };
    if (!std::all_of(reference->arguments.begin(), reference->arguments.end(), isProperty) ||
        (reference->object && !isProperty(*reference->object))) {
        return false;
    }
    const ObjectPtr owner =
        reference->object ? open.evaluate(*reference->object).to<ObjectPtr>() : open.world().powerPoint().application();
    const auto* const published = dynamic_cast<const Published*>(owner.get());
    const automation::Member* const member = published != nullptr && !reference->name.empty()
                                                 ? published->members().find(std::u16string_view(reference->name))
                                                 : nullptr;
    return published != nullptr && (member == nullptr || !member->isMethod);
}

ObjectPtr objectBefore(const std::string& chain, OpenQuestion& open) {
    const Expression expression = language::parseExpression(automation::fromUtf8(chain));
    return isOfProperties(expression, open) ? open.evaluate(expression).to<ObjectPtr>() : nullptr;
}

void addMembers(const ObjectPtr& object, std::vector<std::string>& names) {
    if (const auto* const published = dynamic_cast<const Published*>(object.get())) {
        for (const automation::Member& member : published->members().members()) {
            names.push_back(automation::toUtf8(member.name.text()));
        }
    }
}

} // namespace

std::vector<std::string> completionsOf(const std::string& line, OpenQuestion& open) {
    std::size_t start = line.size();
    while (start > 0 && isPartOfName(line[start - 1])) {
        --start;
    }
    std::vector<std::string> names;
    try {
        if (start > 0 && line[start - 1] == '.') {
            const std::size_t chain = startOfChain(line, start - 1);
            addMembers(objectBefore(line.substr(chain, start - 1 - chain), open), names);
        } else if (start < line.size()) {
            addMembers(open.world().powerPoint().application(), names);
            for (const std::u16string& constant : language::constantNames()) {
                names.push_back(automation::toUtf8(constant));
            }
            names.insert(names.end(), {"Files", "Host", "Learner", "PowerPoint", "Registry"});
        }
    } catch (const std::exception&) {
        names.clear(); // a line that is not right yet has no completions
    }
    const std::u16string begun = automation::fromUtf8(line.substr(start));
    std::erase_if(names, [&](const std::string& name) {
        return !automation::equalIgnoringCase(automation::fromUtf8(name).substr(0, begun.size()), begun);
    });
    return names;
}

} // namespace host
