#include "automation/Integer.h"
#include "automation/LateBound.h"
#include "automation/MemberTable.h"
#include "automation/Text.h"
#include "automation/observe/CallCounter.h"
#include "automation/observe/CallTrace.h"
#include "automation/observe/FaultInjector.h"
#include "tests/support/Errors.h"
#include "tests/trials/memory/ScarceMemory.h"

#include <limits>

namespace automation_tests {

using namespace automation;

/// An object with a member of every kind.
class Sample final : public Published {
public:
    [[nodiscard]] std::int32_t number() const { return number_; }
    void setNumber(std::int16_t number) { number_ = number; }
    [[nodiscard]] std::u16string item(std::int32_t index) const { return u"item " + decimal(index); }
    [[nodiscard]] ObjectPtr child() const { return std::make_shared<Sample>(); }
    void swap(std::u16string& text, std::int32_t& count) const {
        text += u"!";
        count *= 2;
        if (count > 100) {
            raise(RunTimeError::InvalidProcedureCall);
        }
    }
    [[nodiscard]] std::int32_t add(std::int32_t left, std::optional<std::int32_t> right) const {
        return left + right.value_or(10);
    }

    [[nodiscard]] const MemberTable& members() const override {
        static const MemberTable table{
            property<&Sample::number, &Sample::setNumber>(u"Number"),
            method<&Sample::item>(u"Item").asDefault(),
            property<&Sample::child>(u"Child"),
            method<&Sample::swap>(u"Swap"),
            method<&Sample::add>(u"Add", u"Left Right"),
        };
        return table;
    }

private:
    std::int32_t number_ = 7;
};

TEST(Value, ConvertsAsAutomationDoes) {
    EXPECT_EQ(Value(2.5).to<std::int16_t>(), 2);
    EXPECT_EQ(Value(3.5F).to<std::int32_t>(), 4);
    EXPECT_EQ(Value(true).to<std::int32_t>(), -1);
    EXPECT_EQ(Value(u" 12.5 ").to<double>(), 12.5);
    EXPECT_EQ(Value().to<std::int32_t>(), 0);
    EXPECT_EQ(Value().to<std::u16string>(), u"");
    EXPECT_EQ(Value(std::int16_t(-2)).to<bool>(), true);
    EXPECT_EQ(Value(481.625F).to<std::u16string>(), u"481.625");
    EXPECT_EQ(Value(std::int32_t(-42)).to<std::u16string>(), u"-42");
}

TEST(Value, RaisesWhatDoesNotConvert) {
    const auto number = [](RunTimeError error) { return static_cast<std::int32_t>(error); };
    EXPECT_EQ(errorNumber([] { return Value(32768).to<std::int16_t>(); }), number(RunTimeError::Overflow));
    EXPECT_EQ(errorNumber([] { return Value(3e9).to<std::int32_t>(); }), number(RunTimeError::Overflow));
    EXPECT_EQ(errorNumber([] { return Value(1e300).to<float>(); }), number(RunTimeError::Overflow));
    EXPECT_EQ(errorNumber([] { return Value(u"").to<std::int32_t>(); }), number(RunTimeError::TypeMismatch));
    for (const char16_t* const text : {u"12x", u"+-5", u"+", u"nan"}) {
        EXPECT_EQ(errorNumber([&] { return Value(text).to<double>(); }), number(RunTimeError::TypeMismatch));
    }
    EXPECT_EQ(errorNumber([] { return Value(Missing()).to<std::u16string>(); }), number(RunTimeError::TypeMismatch));
    EXPECT_EQ(errorNumber([] { return Value(nullptr).to<std::int32_t>(); }), number(RunTimeError::ObjectNotSet));
    EXPECT_EQ(errorNumber([] { return Value(1).to<ObjectPtr>(); }), number(RunTimeError::ObjectRequired));
}

TEST(Value, StaysWholeWhereMemoryRunsOut) {
    const Value text(std::u16string(100, u'x'));
    for (const Value& original : {text, Value(Array{text, 7, text})}) {
        bool hasStruck = true;
        for (std::size_t position = 1; hasStruck; ++position) {
            Value assigned(u"as it was");
            {
                const trials::ScarceMemory scarce(position);
                try {
                    const Value copy(original);
                    assigned = copy;
                } catch (const std::bad_alloc&) {
                }
                hasStruck = trials::ScarceMemory::hasStruck();
            }
            EXPECT_EQ(assigned, hasStruck ? Value(u"as it was") : original);
        }
    }
}

TEST(Integer, OverflowsInItsOwnType) {
    std::int16_t counter = std::numeric_limits<std::int16_t>::max();
    EXPECT_EQ(errorNumber([&] { increase(counter); }), 6);
    EXPECT_EQ(counter, std::numeric_limits<std::int16_t>::max());
    EXPECT_EQ(errorNumber([] { static_cast<void>(narrow<std::int16_t>(-32769)); }), 6);
    EXPECT_EQ(narrow<std::int16_t>(-32768), -32768);
    EXPECT_EQ(narrow<std::int16_t>(32767), 32767);
}

TEST(Error, KnowsWhatADeadProcessAnswers) {
    for (const std::uint32_t number :
         {0x80010108U, 0x800706BAU, 0x800706BEU, 0x800706BFU, 0x80010007U, 0x80010012U, 0x800401FDU}) {
        EXPECT_TRUE(remote::isDead(static_cast<std::int32_t>(number))) << std::hex << number;
    }
    EXPECT_FALSE(remote::isDead(remote::callRejected) || remote::isDead(remote::retryLater));
}

TEST(MemberTable, ReachesMembersByNameWhateverTheirCase) {
    const LateBound sample(std::make_shared<Sample>());
    sample.put(u"NUMBER", 12);
    EXPECT_EQ(sample.get(u"number").to<std::int32_t>(), 12);
    EXPECT_EQ(sample.call(u"add", 1).to<std::int32_t>(), 11);
    EXPECT_EQ(sample.call(u"add", 1, Missing()).to<std::int32_t>(), 11);
    EXPECT_EQ(sample.call(defaultMember, 3).to<std::u16string>(), u"item 3");
    EXPECT_EQ(sample.get(u"Child", 4).to<std::u16string>(), u"item 4") << "arguments go to the default member";
}

TEST(MemberTable, TakesArgumentsByName) {
    std::vector<std::u16string> calls;
    const auto trace = std::make_shared<CallTrace>(
        [&](const TracedCall& call) { calls.push_back(call.call + u" -> " + call.outcome.substr(0, 9)); });
    const ObjectPtr sample = observed(std::make_shared<Sample>(), trace);
    const auto add = [&](std::vector<Value> arguments, std::vector<std::u16string_view> names) {
        errorNumber([&] { sample->invoke(Name(u"Add", {}, names), Access::Call, arguments); });
    };
    add({2, 1}, {u"RIGHT", u"Left"});
    add({1, 2}, {u"right"});
    add({1}, {u"Left"});
    add({1}, {u"Right"});
    add({1, 2}, {u"Left"});
    add({1}, {u"Middle"});
    EXPECT_EQ(calls, (std::vector<std::u16string>{u"Add(RIGHT:=2, Left:=1) -> 3", u"Add(1, right:=2) -> 3",
                                                  u"Add(Left:=1) -> 11", u"Add(Right:=1) -> error 449",
                                                  u"Add(1, Left:=2) -> error 448", u"Add(Middle:=1) -> error 448"}));
}

TEST(MemberTable, RefusesWhatIsNotPublished) {
    const LateBound sample(std::make_shared<Sample>());
    EXPECT_EQ(errorNumber([&] { sample.get(u"Nothing"); }), 438);
    EXPECT_EQ(errorNumber([&] { sample.call(u"Number"); }), 438) << "a property is not called";
    EXPECT_EQ(errorNumber([&] { sample.put(u"Child", 1); }), 438) << "a property without setter is not written";
    EXPECT_EQ(errorNumber([&] { sample.call(u"Add"); }), 449);
    EXPECT_EQ(errorNumber([&] { sample.call(u"Add", 1, 2, 3); }), 450);
    EXPECT_EQ(errorNumber([&] { sample.put(u"Number", 70000); }), 6);
    EXPECT_EQ(errorNumber([] { LateBound().get(u"Number"); }), 91);
}

TEST(MemberTable, WritesArgumentsBackEvenWhereTheCallRaises) {
    const LateBound sample(std::make_shared<Sample>());
    Value text(u"a");
    Value count(std::int16_t(3));
    sample.call(u"Swap", Value::reference(text), Value::reference(count));
    EXPECT_EQ(text, Value(u"a!"));
    EXPECT_EQ(count, Value(6));
    count = Value(60);
    EXPECT_EQ(errorNumber([&] { sample.call(u"Swap", Value::reference(text), Value::reference(count)); }), 5);
    EXPECT_EQ(count, Value(120));
    sample.call(u"Swap", u"by value", 1);
}

TEST(Observers, StandAroundEveryObjectHandedOut) {
    const auto counter = std::make_shared<CallCounter>();
    std::vector<std::u16string> calls;
    const auto trace = std::make_shared<CallTrace>(
        [&](const TracedCall& call) { calls.push_back(call.call + u" -> " + call.outcome); });
    const ObjectPtr inner = std::make_shared<Sample>();
    const LateBound sample(observed(observed(inner, counter), trace));

    const LateBound child(sample.get(Name(u"Child", u"Sample")).to<ObjectPtr>());
    child.put(u"Number", 3);
    EXPECT_EQ(errorNumber([&] { child.get(u"Nothing"); }), 438);

    EXPECT_EQ(counter->count(), 3U);
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[0] + u", " + calls[1], u"Sample.Child -> <object>, Number = 3 -> Empty");
    EXPECT_TRUE(calls[2].starts_with(u"Nothing -> error 438"));
    EXPECT_TRUE(isSame(sample.object(), inner));
    EXPECT_TRUE(isSame(inner, sample.object()));
    EXPECT_EQ(unobserved(sample.object()), inner);
}

TEST(Observers, MakeTheNthCallFail) {
    const auto failures = [](FaultInjector::Lasting lasting) {
        const auto injector = std::make_shared<FaultInjector>(2, lasting, Error(RunTimeError::OutOfMemory));
        const LateBound sample(observed(std::make_shared<Sample>(), injector));
        std::string outcome;
        for (int i = 0; i < 4; ++i) {
            outcome += errorNumber([&] { sample.get(u"Number"); }) == 7 ? 'x' : '.';
        }
        return outcome;
    };
    EXPECT_EQ(failures(FaultInjector::Lasting::Once), ".x..");
    EXPECT_EQ(failures(FaultInjector::Lasting::FromThereOn), ".xxx");
}

TEST(Text, IsTheSameInUtf8AndInUtf16) {
    const std::vector<std::pair<std::u16string, std::string>> same = {
        {u"Méthodologie \u20AC", "M\xC3\xA9thodologie \xE2\x82\xAC"},
        {u"\u007F\u0080\u07FF", "\x7F\xC2\x80\xDF\xBF"},
        {u"\u0800\uD7FF\uE000\uFFFF", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
        {u"\U00010000\U0001F5FF\U0010FFFF", "\xF0\x90\x80\x80\xF0\x9F\x97\xBF\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [text, bytes] : same) {
        EXPECT_EQ(toUtf8(text), bytes);
        EXPECT_EQ(fromUtf8(bytes), text) << bytes;
    }
    for (const char* const wrong :
         {"\x80", "\xC0\xAF", "\xC1\xBF", "\xC3", "\xC3\x28", "\xC3\xC3", "\xE0\x9F\xBF", "\xED\xA0\x80",
          "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80"}) {
        const std::u16string read = fromUtf8(wrong);
        EXPECT_EQ(read.find_first_not_of(u"\uFFFD("), std::u16string::npos) << wrong;
        EXPECT_EQ(read.front(), u'\uFFFD') << wrong;
    }
    const char16_t high = 0xD83D;
    const char16_t low = 0xDC00;
    for (const std::u16string& half :
         {std::u16string{high}, {low}, {high, u'a'}, {high, u'\uE000'}, {low, low}, {high, high}}) {
        EXPECT_TRUE(toUtf8(half).starts_with("\xEF\xBF\xBD")) << toUtf8(half);
    }
    EXPECT_STREQ(automation::Error(65535, {}, {}).what(), "65535");
    EXPECT_STREQ(automation::Error(65536, {}, {}).what(), "00010000");
}

TEST(Text, IsInLowerCaseAsUnicodeHasIt) {
    EXPECT_EQ(lowerCase(u"ÉÈÇÀŒŸ MÉTHODOLOGIE.PPT × ƠƯǍǅẞ ΆΈΊΌΎΏΑΡΣΫς ἈὙᾼῌ ЀЯѠӀ ԱՖ"),
              u"éèçàœÿ méthodologie.ppt × ơưǎǆß άέίόύώαρσϋς ἀὑᾳῃ ѐяѡӏ աֆ");
    int capitals = 0;
    int sum = 0;
    for (char16_t letter = 0; letter < 0x2000; ++letter) {
        const char16_t small = lowerCase(letter);
        EXPECT_EQ(lowerCase(small), small) << static_cast<int>(letter);
        capitals += small != letter ? 1 : 0;
        sum += small != letter ? small : 0;
    }
    EXPECT_EQ(capitals, 689) << "of Latin, Greek, Cyrillic and Armenian in Unicode 14";
    EXPECT_EQ(sum, 2121938) << "of their small letters";
}

} // namespace automation_tests
