#include "automation/Error.h"
#include "automation/Text.h"
#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/Variant.h"
#include "automation/com/VariantReader.h"
#include "automation/com/WideText.h"
#include "tests/automation/com/AnyVariant.h"
#include "tests/automation/com/Sample.h"
#include "tests/support/Chance.h"
#include "tests/support/Errors.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <utility>

namespace variant_tests {

using namespace automation;
using namespace automation::com;
using tests::referenceTo;

/// A VARIANT of a type, filled by what is given.
template <typename Fill> Variant made(int type, Fill fill) {
    Variant variant;
    fill(variant);
    variant.vt = static_cast<VARTYPE>(type);
    return variant;
}

Value read(const VARIANT& variant) {
    return VariantReader().read(variant);
}

constexpr double beyond = 4294967296.0;

TEST(Variant, ReadsEveryType) {
    const DECIMAL decimal = [] {
        DECIMAL result{};
        VarDecFromR8(-12.5, &result);
        return result;
    }();
    const struct {
        Variant variant;
        Value expected;
    } cases[] = {
        {Variant(), Empty()},
        {made(VT_NULL, [](auto&) {}), Empty()},
        {made(VT_ERROR, [](auto& v) { v.scode = DISP_E_PARAMNOTFOUND; }), Missing()},
        {made(VT_BOOL, [](auto& v) { v.boolVal = VARIANT_TRUE; }), true},
        {made(VT_BOOL, [](auto& v) { v.boolVal = 1; }), true},
        {made(VT_I1, [](auto& v) { v.cVal = static_cast<char>(-5); }), std::int16_t{-5}},
        {made(VT_UI1, [](auto& v) { v.bVal = 250; }), std::int16_t{250}},
        {made(VT_I2, [](auto& v) { v.iVal = -32768; }), std::int16_t{-32768}},
        {made(VT_UI2, [](auto& v) { v.uiVal = 65535; }), 65535},
        {made(VT_I4, [](auto& v) { v.lVal = -70000; }), -70000},
        {made(VT_INT, [](auto& v) { v.intVal = 5; }), 5},
        {made(VT_UI4, [](auto& v) { v.ulVal = 5; }), 5},
        {made(VT_UINT, [](auto& v) { v.uintVal = 0xFFFFFFFFU; }), 4294967295.0},
        {made(VT_I8, [](auto& v) { v.llVal = -4294967296LL; }), -beyond},
        {made(VT_UI8, [](auto& v) { v.ullVal = 9; }), 9},
        {made(VT_R4, [](auto& v) { v.fltVal = 0.1F; }), 0.1F},
        {made(VT_R8, [](auto& v) { v.dblVal = 0.1; }), 0.1},
        {made(VT_CY, [](auto& v) { v.cyVal.int64 = 12500; }), 1.25},
        {made(VT_DATE, [](auto& v) { v.date = 2.5; }), 2.5},
        {made(VT_DECIMAL, [&](auto& v) { v.decVal = decimal; }), -12.5},
        {made(VT_BSTR, [](auto& v) { v.bstrVal = Bstr(u"L'été\0!").release(); }), u"L'été"},
        {made(VT_BSTR, [](auto& v) { v.bstrVal = nullptr; }), u""},
        {made(VT_DISPATCH, [](auto& v) { v.pdispVal = nullptr; }), nullptr},
        {made(VT_UNKNOWN, [](auto& v) { v.punkVal = nullptr; }), nullptr},
        {made(VT_ARRAY | VT_I4, [](auto& v) { v.parray = nullptr; }), Array()},
    };
    for (const auto& [variant, expected] : cases) {
        EXPECT_EQ(read(variant), expected) << "type " << variant.vt;
        if (variant.vt == VT_EMPTY || variant.vt == VT_NULL) {
            continue;
        }
        // The same behind a reference to a variable of that type, and to a VARIANT.
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): it is only read
        VARIANT reference = referenceTo(variant.vt, const_cast<Variant&>(variant));
        EXPECT_EQ(read(reference), expected) << "reference to type " << variant.vt;
        EXPECT_EQ(read(Variant::reference(reference)), expected) << "reference to a reference to type " << variant.vt;
    }
}

TEST(Variant, GivesBackWhatItWasGiven) {
    const auto sample = std::make_shared<tests::Sample>();
    constexpr std::u16string_view text(u"a\0b\u00E9\U0001F600", 6);
    for (const Value& value :
         {Value(), Value(Missing()), Value(false), Value(true), Value(std::int16_t{-1}), Value(INT32_MIN), Value(1.5F),
          Value(-0.1), Value(u""), Value(text), Value(nullptr), Value(sample), Value(Array()),
          Value(Array{1, u"deux", Array{sample, Empty()}, nullptr})}) {
        EXPECT_EQ(read(variantOf(value)), value) << toUtf8(value.display());
    }
}

TEST(Variant, ReadsArraysOfAnyTypeAndShape) {
    SAFEARRAYBOUND bounds[] = {{2, 1}, {3, -1}};
    SAFEARRAY* const grid = SafeArrayCreate(VT_R4, 2, bounds);
    for (LONG row = 1; row <= 2; ++row) {
        for (LONG column = -1; column <= 1; ++column) {
            LONG index[] = {row, column};
            auto element = static_cast<float>(row * 10 + column);
            ASSERT_EQ(SafeArrayPutElement(grid, index, &element), S_OK);
        }
    }
    const Variant variant = made(VT_ARRAY | VT_R4, [&](auto& v) { v.parray = grid; });
    EXPECT_EQ(read(variant), Value(Array{Array{9.0F, 10.0F, 11.0F}, Array{19.0F, 20.0F, 21.0F}}));
}

TEST(Variant, WritesATableOfNumbersInTwoDimensions) {
    const Array points{Array{1, 2.5F}, Array{3, 4}, Array{5, 6}};
    const Variant table = variantOf(points);
    EXPECT_EQ(SafeArrayGetDim(table.parray), 2U);
    EXPECT_EQ(read(table), Value(points));
    const Array ragged{Array{1, 2}, Array{3}};
    EXPECT_EQ(SafeArrayGetDim(variantOf(ragged).parray), 1U);
    EXPECT_EQ(read(variantOf(ragged)), Value(ragged));
}

TEST(Variant, RefusesWhatCannotBeRead) {
    Variant self; // refers to itself for ever
    self = Variant::reference(self);
    Variant nested = variantOf(Array{1});
    for (int level = 0; level < 40; ++level) {
        SAFEARRAY* const outer = SafeArrayCreateVector(VT_VARIANT, 0, 1);
        static_cast<VARIANT*>(outer->pvData)[0] = nested.release();
        nested = made(VT_ARRAY | VT_VARIANT, [&](auto& v) { v.parray = outer; });
    }
    Variant large = variantOf(Array(1U << 19U));
    Variant manyTimes = variantOf(Array(4)); // each element stands for the large one
    for (int i = 0; i < 4; ++i) {
        static_cast<VARIANT*>(manyTimes.parray->pvData)[i] = Variant::reference(large).release();
    }
    SAFEARRAYBOUND many[] = {{0x7FFFFFFF, 0}, {0, 0}};
    const struct {
        Variant variant;
        int expected;
    } cases[] = {
        {made(VT_ERROR, [](auto& v) { v.scode = E_FAIL; }), 13},
        {made(VT_RECORD, [](auto& v) { v.pvRecord = v.pRecInfo = nullptr; }), 13},
        {made(VT_UNKNOWN, [](auto& v) { CreateErrorInfo(reinterpret_cast<ICreateErrorInfo**>(&v.punkVal)); }), 13},
        {made(VT_BYREF | VT_I4, [](auto& v) { v.plVal = nullptr; }), 5},
        {made(VT_BYREF | VT_VARIANT, [](auto& v) { v.pvarVal = nullptr; }), 5},
        {made(VT_BYREF | VT_BSTR, [](auto& v) { v.pbstrVal = nullptr; }), 5},
        {made(VT_ARRAY | VT_UI1, [](auto& v) { v.parray = SafeArrayCreateVector(VT_UI1, 0, 3U << 20U); }), 7},
        {made(VT_ARRAY | VT_I4, [&](auto& v) { v.parray = SafeArrayCreate(VT_I4, 2, many); }), 7},
        {made(VT_ARRAY | VT_I2, [](auto& v) { v.parray = SafeArrayCreateVector(VT_I4, 0, 3); }), 13},
        {std::move(nested), 7},
        {std::move(manyTimes), 7},
        {Variant::reference(self), 7},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(errorNumber([&] { static_cast<void>(read(each.variant)); }), each.expected)
            << "type " << each.variant.vt;
    }
}

/// True where an operation raises what the bridge says that it raises.
bool isRefused(const std::function<void()>& operation) {
    const std::int32_t number = errorNumber(operation);
    constexpr std::array known{noError, 5, 6, 7, 13, 424, 91};
    EXPECT_NE(std::find(known.begin(), known.end(), number), known.end()) << number;
    return number != noError;
}

TEST(Variant, WithstandsWhatACarelessClientPasses) {
    tests::Chance chance;
    tests::AnyVariant any(chance);
    std::size_t readings = 0;
    std::size_t refusals = 0;
    std::size_t assignments = 0;
    for (int round = 0; round < 20000; ++round) {
        const VARIANT& variant = any.pick();
        SCOPED_TRACE(variant.vt);
        std::optional<Value> value;
        ++(isRefused([&] { value = read(variant); }) ? refusals : readings);
        if (value) {
            const Variant back = variantOf(*value);
            EXPECT_EQ(read(back).display(), value->display());
        }
        VARIANT variable;
        VariantInit(&variable);
        VARIANT target = variant; // a pointer that the client owns, or none
        if (isReference(target) && target.vt != (VT_BYREF | VT_VARIANT)) {
            const auto type = static_cast<VARTYPE>(target.vt & ~VT_BYREF);
            target.byref = target.byref == nullptr ? nullptr : referenceTo(type, variable).byref;
            if (!isRefused([&] { assign(target, value.value_or(Empty())); })) {
                ++assignments;
                variable.vt = type;
            }
        } else {
            target = Variant::reference(variable).release();
            assignments += isRefused([&] { assign(target, value.value_or(Empty())); }) ? 0U : 1U;
        }
        VariantClear(&variable);
        any.forget();
    }
    EXPECT_GT(readings, 5000U);
    EXPECT_GT(refusals, 1000U);
    EXPECT_GT(assignments, 5000U);
}

TEST(Variant, WritesToVariablesOfEveryType) {
    const auto sample = std::make_shared<tests::Sample>();
    const struct {
        int type;
        Value given;
        Value found;
        int refused = noError;
    } cases[] = {
        {VT_I1, -5.0, std::int16_t{-5}},
        {VT_I1, 200, Empty(), 6},
        {VT_UI1, 200, std::int16_t{200}},
        {VT_I2, 2.5, std::int16_t{2}},
        {VT_I2, 40000, Empty(), 6},
        {VT_UI2, 40000, 40000},
        {VT_I4, u"12", 12},
        {VT_I4, u"douze", Empty(), 13},
        {VT_INT, true, -1},
        {VT_UI4, 4294967295.0, 4294967295.0},
        {VT_UINT, -1, Empty(), 6},
        {VT_I8, beyond, beyond},
        {VT_UI8, 7, 7},
        {VT_R4, 0.5, 0.5F},
        {VT_R8, u"0.5", 0.5},
        {VT_CY, 1.25, 1.25},
        {VT_DATE, 2.5, 2.5},
        {VT_DECIMAL, -12.5, -12.5},
        {VT_BOOL, 2, true},
        {VT_BSTR, 12, u"12"},
        {VT_DISPATCH, sample, sample},
        {VT_DISPATCH, nullptr, nullptr},
        {VT_DISPATCH, 1, Empty(), 424},
        {VT_UNKNOWN, sample, sample},
        {VT_ARRAY | VT_VARIANT, Array{1, u"2"}, Array{1, u"2"}},
        {VT_ARRAY | VT_VARIANT, 1, Empty(), 13},
        {VT_ARRAY | VT_I4, Array{1}, Empty(), 13},
        {VT_VARIANT, u"texte", u"texte"},
        {VT_VARIANT, Missing(), Missing()},
        {VT_RECORD, 1, Empty(), 13},
    };
    const auto refusal = [](const VARIANT& to, const Value& value) { return errorNumber([&] { assign(to, value); }); };
    for (const auto& [type, given, found, refused] : cases) {
        // The variable is a VARIANT's content, so that it is cleared at the end as its type demands.
        Variant variable;
        variable.vt = static_cast<VARTYPE>(type == VT_VARIANT || type == VT_RECORD ? int{VT_EMPTY} : type);
        VARIANT reference = referenceTo(type, variable);
        EXPECT_EQ(refusal(reference, given), refused) << "type " << type;
        if (refused == noError) {
            variable.vt = type == VT_VARIANT ? variable.vt : static_cast<VARTYPE>(type);
            EXPECT_EQ(read(variable), found) << "type " << type;
            assign(reference, given); // what was there is released
        }
        // A variable that refers to this one passes on what is written to it.
        if (refused == noError && type != VT_VARIANT) {
            Variant passedOn;
            static_cast<VARIANT&>(passedOn) = reference;
            Variant outer = Variant::reference(passedOn);
            assign(Variant::reference(outer), given);
            EXPECT_EQ(passedOn.vt, reference.vt) << "type " << type;
            variable.vt = static_cast<VARTYPE>(type); // a decimal lies over it
            EXPECT_EQ(read(variable), found) << "through others, type " << type;
        }
        reference.byref = nullptr;
        EXPECT_NE(refusal(reference, given), noError) << "null reference to type " << type;
    }
    Variant circle;
    static_cast<VARIANT&>(circle) = Variant::reference(circle);
    EXPECT_EQ(errorNumber([&] { assign(circle, 1); }), 7);
    EXPECT_EQ(errorNumber([&] { read(circle); }), 7);
}

} // namespace variant_tests
