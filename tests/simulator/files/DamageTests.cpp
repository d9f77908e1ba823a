#include "automation/LateBound.h"
#include "automation/MemberTable.h"
#include "automation/Text.h"
#include "host/command/Library.h"
#include "host/language/Interpreter.h"
#include "host/language/Parser.h"
#include "host/run/TrainingHost.h"
#include "host/run/WorldStage.h"
#include "host/world/EmbeddedWorld.h"
#include "simulator/files/WholeFile.h"
#include "tests/support/Chance.h"
#include "tests/trials/histories/PresentationsIn.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace damage_tests {

using tests::Chance;
namespace language = host::language;

/// The lines of all scenario files.
std::vector<std::string> scenarioLines() {
    std::vector<std::string> lines;
    for (const std::filesystem::path& path : host::Library(SCENARIOS).files()) {
        std::ifstream file(path);
        for (std::string line; std::getline(file, line);) {
            lines.push_back(line);
        }
    }
    return lines;
}

/// Writes something wrong into a text: a byte, a piece of another text, a piece left out or said twice.
std::string mutated(std::string text, const std::vector<std::string>& others, Chance& chance) {
    constexpr std::string_view telling = "\"\"''()=.,&-#:\t \r\n\0\xC3\xFF"
                                         "09aAxX_";
    for (std::size_t changes = 1 + chance.below(3); changes != 0; --changes) {
        const std::size_t place = chance.below(text.size() + 1);
        const std::size_t length = chance.below(text.size() - place + 1);
        switch (chance.below(5)) {
        case 0: text.insert(place, 1, chance.of(telling)); break;
        case 1: text.replace(place, std::min<std::size_t>(length, 1), 1, static_cast<char>(chance.below(256))); break;
        case 2: text.erase(place, length); break;
        case 3: text.insert(place, text.substr(place, length)); break;
        default: {
            const std::string& other = chance.of(others);
            const std::size_t from = chance.below(other.size() + 1);
            text.replace(place, length, other, from, chance.below(other.size() - from + 1));
        }
        }
    }
    return text;
}

TEST(Damage, AScenarioFileIsReadOrRefusedWithItsPlaces) {
    Chance chance;
    const std::vector<std::string> lines = scenarioLines();
    std::size_t refused = 0;
    constexpr std::size_t texts = 3000;
    for (std::size_t i = 0; i < texts; ++i) {
        std::string text = "question 306\ncourse\n";
        const std::size_t from = chance.below(lines.size());
        for (std::size_t line = from; line < std::min(from + 12, lines.size()); ++line) {
            text += (chance.oneIn(6) ? mutated(lines[line], lines, chance) : lines[line]) + "\n";
        }
        const auto count = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
        try {
            static_cast<void>(language::parse("mutated", text));
        } catch (const language::WrongLines& wrong) {
            ++refused;
            ASSERT_FALSE(wrong.remarks.empty()) << text;
            for (const language::Remark& remark : wrong.remarks) {
                ASSERT_FALSE(remark.message.empty()) << text;
                ASSERT_TRUE(remark.place.line >= 1 && remark.place.line <= count && remark.place.column >= 1) << text;
            }
        } catch (const std::exception& other) {
            FAIL() << other.what() << "\n" << text;
        }
    }
    EXPECT_GT(refused, texts / 10);
    EXPECT_LT(refused, texts);
}

TEST(Damage, AStatementIsPerformedOrFailsWithItsPlace) {
    Chance chance;
    const std::vector<std::string> lines = scenarioLines();
    const language::ScenarioFile file = host::load(host::Library(SCENARIOS).fileOf(306));
    const host::Course course(file, host::makeEmbeddedWorld);
    std::size_t performed = 0;
    std::size_t failed = 0;
    for (std::size_t round = 0; round < 30; ++round) {
        const host::WorldPtr world = host::makeEmbeddedWorld();
        host::Witness nobody;
        host::TrainingHost training(*world, course, file.question, nobody);
        host::WorldStage stage(*world, &training);
        language::Interpreter interpreter(stage);
        training.initQuestion(file.question, world->hostFolder());
        for (std::size_t i = 0; i < 100; ++i) {
            const std::string text = chance.oneIn(2) ? mutated(chance.of(lines), lines, chance) : chance.of(lines);
            try {
                interpreter.execute(language::parseStatement(automation::fromUtf8(text)));
                ++performed;
            } catch (const language::SyntaxError&) {
            } catch (const language::Failure& failure) {
                ++failed;
                ASSERT_FALSE(failure.remark.message.empty()) << text;
            } catch (const std::exception& other) {
                FAIL() << other.what() << "\n" << text;
            }
        }
        interpreter.forget();
    }
    EXPECT_GT(performed, 100U);
    EXPECT_GT(failed, 100U);
}

using automation::Access;
using automation::Array;
using automation::Error;
using automation::ObjectPtr;
using automation::Value;

/// A value of any kind, at the edges of its kind more often than not.
class AnyValue {
public:
    explicit AnyValue(Chance& chance) : chance_(chance) {}

    /// Objects are picked from a pool; nothing where it is empty. By-reference values refer to variables kept here.
    Value pick(const std::vector<ObjectPtr>& pool, int depth = 0) {
        using namespace std::string_view_literals;
        static constexpr std::array texts{
            u""sv,       u" "sv,   u"-1"sv,  u"32768"sv,    u"2147483648"sv, u"1e309"sv, u"1e-400"sv, u"0x10"sv,
            u"&H7FFF"sv, u"1,5"sv, u"1.5"sv, u"vrai"sv,     u"True"sv,       u"é"sv,     u"nan"sv,    u"inf"sv,
            u"-"sv,      u"+"sv,   u"1 2"sv, u"Standard"sv, u"\0"sv,         u"\xD800"sv};
        switch (chance_.below(depth > 2 ? 9 : 11)) {
        case 0: return {};
        case 1: return automation::Missing();
        case 2: return chance_.oneIn(2);
        case 3: return static_cast<std::int16_t>(chance_.oneIn(2) ? chance_.below(5) : chance_.bits());
        case 4: return static_cast<std::int32_t>(chance_.oneIn(2) ? chance_.below(5) : chance_.bits());
        case 5: return std::bit_cast<float>(static_cast<std::uint32_t>(chance_.bits()));
        case 6:
            return chance_.oneIn(2) ? std::bit_cast<double>(chance_.bits())
                                    : static_cast<double>(chance_.below(140000)) / 2 - 35000;
        case 7: return chance_.oneIn(23) ? std::u16string(5000, u'9') : std::u16string(chance_.of(texts));
        case 8: return pool.empty() || chance_.oneIn(4) ? ObjectPtr() : chance_.of(pool);
        case 9: {
            Array elements(chance_.below(4));
            std::generate(elements.begin(), elements.end(), [&] { return pick(pool, depth + 1); });
            return elements;
        }
        default: return Value::reference(*variables_.emplace_back(std::make_unique<Value>(pick(pool, depth + 3))));
        }
    }
    void forget() { variables_.clear(); }

private:
    Chance& chance_;
    std::vector<std::unique_ptr<Value>> variables_;
};

/// The value in another type; nothing where the conversion raises what conversions may raise.
template <typename T> std::optional<T> converted(const Value& value) {
    try {
        return value.to<T>();
    } catch (const Error& error) {
        using automation::RunTimeError;
        EXPECT_TRUE(error.is(RunTimeError::Overflow) || error.is(RunTimeError::TypeMismatch) ||
                    error.is(RunTimeError::ObjectNotSet) || error.is(RunTimeError::ObjectRequired))
            << error.what();
        return std::nullopt;
    }
}

TEST(Damage, ConversionsAgreeWithOneAnother) {
    Chance chance;
    AnyValue any(chance);
    std::size_t numbers = 0;
    for (std::size_t i = 0; i < 20000; ++i) {
        const Value value = any.pick({});
        SCOPED_TRACE(automation::toUtf8(value.display()));
        const auto small = converted<std::int16_t>(value);
        const auto whole = converted<std::int32_t>(value);
        const auto single = converted<float>(value);
        const auto number = converted<double>(value);
        const auto truth = converted<bool>(value);
        const auto text = converted<std::u16string>(value);
        static_cast<void>(converted<ObjectPtr>(value));
        static_cast<void>(converted<Array>(value));
        if (small) {
            ASSERT_EQ(whole, std::optional<std::int32_t>(*small));
        }
        if (whole) {
            ASSERT_TRUE(number && std::abs(*number - *whole) <= 0.5);
        }
        if (single && std::isfinite(*single)) {
            ASSERT_TRUE(number && static_cast<float>(*number) == *single);
        }
        if (truth && number && !value.is<std::u16string>()) {
            ASSERT_EQ(*truth, *number != 0);
        }
        // A text holds seven digits of a single.
        if (whole && !value.is<float>() && !value.is<std::u16string>() && !value.is<bool>() && !value.isEmpty() &&
            text) {
            ASSERT_EQ(converted<std::int32_t>(Value(*text)), whole);
        }
        numbers += number ? 1U : 0U;
        any.forget();
    }
    EXPECT_GT(numbers, 5000U);
}

/// A new presentation, or now and then one of others where K73053_DECKS names their folder.
ObjectPtr anyPresentation(host::World& world, const ObjectPtr& presentations, Chance& chance) {
    const char* const folder = std::getenv("K73053_DECKS");
    if (folder != nullptr && chance.oneIn(2)) {
        try {
            const std::string bytes =
                simulator::files::wholeFile(chance.of(trials::histories::presentationsIn(folder))).value_or("");
            world.files().write(u"C:\\Deck.ppt", {bytes.begin(), bytes.end()});
            return automation::LateBound(presentations).call(u"Open", u"C:\\Deck.ppt").to<ObjectPtr>();
        } catch (const Error&) { // damaged, or encrypted
        }
    }
    return automation::LateBound(presentations).call(u"Add").to<ObjectPtr>();
}

TEST(Damage, ObjectsAnswerAnyArgumentsWithAResultOrAnError) {
    Chance chance;
    AnyValue any(chance);
    std::size_t answered = 0;
    std::size_t refused = 0;
    const std::size_t alive = automation::Object::alive();
    {
        const host::WorldPtr world = host::makeEmbeddedWorld();
        std::vector<ObjectPtr> pool;
        for (std::size_t i = 0; i < 20000; ++i) {
            if (i % 500 == 0 || world->powerPoint().window() == 0) {
                // A pool of its own now and then: objects on what has been deleted answer nothing more.
                pool.clear();
                world->powerPoint().close();
                world->powerPoint().start();
                const ObjectPtr application = world->powerPoint().application();
                pool = {application, automation::LateBound(application).get(u"Presentations").to<ObjectPtr>()};
                pool.push_back(anyPresentation(*world, pool[1], chance));
                pool.push_back(automation::LateBound(pool[2]).get(u"Slides").to<ObjectPtr>());
                pool.push_back(automation::LateBound(pool[3]).call(u"Add", 1, 2).to<ObjectPtr>());
                pool.push_back(automation::LateBound(pool[4]).get(u"Shapes").to<ObjectPtr>());
            }
            const ObjectPtr object = chance.of(pool);
            const auto* const published = dynamic_cast<const automation::Published*>(object.get());
            ASSERT_NE(published, nullptr);
            const automation::Member& member = chance.of(published->members().members());
            std::vector<Value> arguments(chance.oneIn(2) ? 0 : chance.below(5));
            std::generate(arguments.begin(), arguments.end(), [&] { return any.pick(pool); });
            try {
                const Access access = chance.oneIn(3) ? Access::Put : Access::GetOrCall;
                const Value answer = object->invoke(member.name, access, arguments);
                ++answered;
                if (answer.isObject() && answer.as<ObjectPtr>()) {
                    pool.push_back(answer.as<ObjectPtr>());
                }
            } catch (const Error&) {
                ++refused;
            } catch (const std::exception& other) {
                FAIL() << automation::toUtf8(member.name.text()) << ": " << other.what();
            }
            any.forget();
        }
    }
    EXPECT_EQ(automation::Object::alive(), alive);
    EXPECT_GT(answered, 2000U);
    EXPECT_GT(refused, 2000U);
}

} // namespace damage_tests
