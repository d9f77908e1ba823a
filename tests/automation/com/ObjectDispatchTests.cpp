#include "automation/Error.h"
#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/Variant.h"
#include "automation/com/VariantReader.h"
#include "automation/com/WideText.h"
#include "tests/automation/com/Sample.h"
#include "tests/library/ErrorSaid.h"

#include <gtest/gtest.h>

#include <vector>

namespace object_dispatch_tests {

using namespace automation;
using namespace automation::com;
using tests::Sample;

constexpr WORD both = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

class ObjectDispatchTest : public testing::Test {
protected:
    DISPID idOf(std::wstring_view name) {
        std::wstring text(name);
        LPOLESTR asked = text.data();
        DISPID id = 0;
        const HRESULT status = afterAnError([&] { return dispatch_->GetIDsOfNames(IID_NULL, &asked, 1, 0, &id); });
        EXPECT_EQ(status, id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK);
        return id;
    }

    /// Arguments are given in their order.
    HRESULT invoke(DISPID id, WORD flags, std::vector<Variant> arguments = {}, std::vector<DISPID> named = {}) {
        std::reverse(arguments.begin(), arguments.end());
        DISPPARAMS given{arguments.data(), named.data(), static_cast<UINT>(arguments.size()),
                         static_cast<UINT>(named.size())};
        raised_.clear();
        result_ = Variant();
        return afterAnError(
            [&] { return dispatch_->Invoke(id, IID_NULL, 0, flags, &given, &result_, &raised_, nullptr); });
    }
    /// The status of a call that follows one that has failed. What that one has said must not be taken for what this
    /// one says, which is nothing but where it raises.
    template <typename Call> static HRESULT afterAnError(const Call& call) {
        ComPtr<ICreateErrorInfo> earlier;
        EXPECT_EQ(CreateErrorInfo(earlier.receive()), S_OK);
        SetErrorInfo(0, earlier.as<IErrorInfo>().get());
        const HRESULT status = call();
        ComPtr<IErrorInfo> left;
        EXPECT_TRUE(status == DISP_E_EXCEPTION || GetErrorInfo(0, left.receive()) == S_FALSE) << std::hex << status;
        return status;
    }
    template <typename... Arguments> HRESULT call(const wchar_t* name, Arguments&&... arguments) {
        std::vector<Variant> list;
        (list.push_back(std::forward<Arguments>(arguments)), ...);
        return invoke(idOf(name), both, std::move(list));
    }
    /// Expects a call to raise; gives the number that its EXCEPINFO has.
    template <typename... Arguments> std::uint32_t raisedBy(const wchar_t* name, Arguments&&... arguments) {
        EXPECT_EQ(call(name, std::forward<Arguments>(arguments)...), DISP_E_EXCEPTION);
        SetErrorInfo(0, nullptr);
        return static_cast<std::uint32_t>(raised_.scode);
    }
    template <typename... Arguments> Value resultOf(const wchar_t* name, Arguments&&... arguments) {
        EXPECT_EQ(call(name, std::forward<Arguments>(arguments)...), S_OK);
        return VariantReader().read(result_);
    }
    static std::vector<Variant> two(Variant first, Variant second) {
        std::vector<Variant> list;
        list.push_back(std::move(first));
        list.push_back(std::move(second));
        return list;
    }
    static std::vector<Variant> one(const Value& value) {
        std::vector<Variant> list;
        list.push_back(variantOf(value));
        return list;
    }
    static Variant reference(int type, void* place) {
        Variant result;
        result.vt = static_cast<VARTYPE>(VT_BYREF | type);
        result.byref = place;
        return result;
    }

    static Variant v(const Value& value) { return variantOf(value); }

    std::shared_ptr<Sample> sample_ = std::make_shared<Sample>();
    ComPtr<IDispatch> dispatch_ = dispatchOf(sample_);
    Variant result_;
    ExceptionInfo raised_;
};

TEST_F(ObjectDispatchTest, NumbersItsMembers) {
    EXPECT_EQ(idOf(L"Number"), 1);
    EXPECT_EQ(idOf(L"TARGET"), 2);
    EXPECT_EQ(idOf(L"Item"), DISPID_VALUE);
    EXPECT_EQ(idOf(L"Echo"), 5);
    EXPECT_EQ(idOf(L"Nothing"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(L""), DISPID_UNKNOWN);

    std::wstring texts[] = {L"Add", L"left"};
    LPOLESTR names[] = {texts[0].data(), texts[1].data()};
    DISPID ids[] = {0, 0};
    EXPECT_EQ(dispatch_->GetIDsOfNames(IID_NULL, names, 2, 0, ids), S_OK);
    EXPECT_EQ(ids[0], 6);
    EXPECT_EQ(ids[1], 0);
    texts[1] = L"lift";
    EXPECT_EQ(dispatch_->GetIDsOfNames(IID_NULL, names, 2, 0, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[0], 6);
    EXPECT_EQ(ids[1], DISPID_UNKNOWN);
    EXPECT_EQ(idOf(L"_newenum"), DISPID_NEWENUM);
    EXPECT_EQ(dispatch_->GetIDsOfNames(IID_NULL, nullptr, 1, 0, ids), E_INVALIDARG);
    EXPECT_EQ(dispatch_->GetIDsOfNames(IID_IDispatch, names, 1, 0, ids), DISP_E_UNKNOWNINTERFACE);
}

TEST_F(ObjectDispatchTest, ReachesEveryKindOfMember) {
    EXPECT_EQ(invoke(1, DISPATCH_PROPERTYPUT, one(u"8"), {DISPID_PROPERTYPUT}), S_OK);
    EXPECT_EQ(invoke(1, DISPATCH_PROPERTYGET), S_OK);
    EXPECT_EQ(VariantReader().read(result_), Value(8));
    EXPECT_EQ(resultOf(L"Item", v(3)), Value(u"Élément 3"));
    EXPECT_EQ(resultOf(L"Add", v(1), v(Missing())), Value(101));
    EXPECT_EQ(resultOf(L"Add", v(1), v(2)), Value(3));
    EXPECT_EQ(invoke(6, both, two(v(3), v(1)), {0, 1}), S_OK) << "named arguments come the last one first";
    EXPECT_EQ(VariantReader().read(result_), Value(4));
    EXPECT_EQ(invoke(6, both, one(1), {0}), S_OK);
    EXPECT_EQ(VariantReader().read(result_), Value(101));
    EXPECT_EQ(resultOf(L"Child", v(2)), Value(u"Élément 2")) << "arguments go to the default member of what it answers";
}

TEST_F(ObjectDispatchTest, RefusesCleanly) {
    const struct {
        DISPID id;
        WORD flags;
        int arguments;
        std::vector<DISPID> named;
        HRESULT expected;
    } cases[] = {
        {99, both, 0, {}, DISP_E_MEMBERNOTFOUND},
        {1, DISPATCH_METHOD, 0, {}, DISP_E_MEMBERNOTFOUND},
        {6, DISPATCH_PROPERTYGET, 0, {}, DISP_E_MEMBERNOTFOUND},
        {3, DISPATCH_PROPERTYPUT, 1, {DISPID_PROPERTYPUT}, DISP_E_MEMBERNOTFOUND},
        {1, 0, 0, {}, DISP_E_MEMBERNOTFOUND},
        {1, DISPATCH_PROPERTYPUT, 0, {}, DISP_E_BADPARAMCOUNT},
        {6, both, 1000, {}, DISP_E_BADPARAMCOUNT},
        {5, both, 1, {0}, DISP_E_NONAMEDARGS},
        {1, DISPATCH_PROPERTYPUT, 1, {1}, DISP_E_NONAMEDARGS},
        {6, both, 1, {2}, DISP_E_PARAMNOTFOUND},
        {6, both, 1, {-1}, DISP_E_PARAMNOTFOUND},
        {6, both, 2, {0}, DISP_E_PARAMNOTFOUND},
        {6, both, 0, {0}, E_INVALIDARG},
    };
    for (const auto& [id, flags, arguments, named, expected] : cases) {
        EXPECT_EQ(invoke(id, flags, std::vector<Variant>(static_cast<std::size_t>(arguments)), named), expected)
            << id << ", flags " << flags;
    }

    DISPPARAMS broken{nullptr, nullptr, 3, 0};
    const auto invokeRaw = [&](REFIID reserved, DISPPARAMS* given) {
        return afterAnError([&] { return dispatch_->Invoke(6, reserved, 0, both, given, nullptr, nullptr, nullptr); });
    };
    EXPECT_EQ(invokeRaw(IID_NULL, &broken), E_INVALIDARG);
    EXPECT_EQ(invokeRaw(IID_NULL, nullptr), E_INVALIDARG);
    EXPECT_EQ(invokeRaw(IID_IDispatch, &broken), DISP_E_UNKNOWNINTERFACE);
}

TEST_F(ObjectDispatchTest, RaisesTheSameInBothForms) {
    const struct {
        std::int32_t number;
        std::uint32_t status;
    } cases[] = {{0, 0x800A0005},      {5, 0x800A0005},       {9, 0x800A0009},   {91, 0x800A005B},
                 {0xFFFF, 0x800AFFFF}, {0x10000, 0x800A0005}, {438, 0x800A01B6}, {-2147220504, 0x800403E8}};
    for (const auto& [number, status] : cases) {
        EXPECT_EQ(call(L"Fail", v(number)), DISP_E_EXCEPTION);
        EXPECT_EQ(static_cast<std::uint32_t>(raised_.scode), status);
        EXPECT_EQ(Bstr::textOf(raised_.bstrSource), Sample::source);
        EXPECT_EQ(Bstr::textOf(raised_.bstrDescription), Sample::description);
        EXPECT_EQ(Bstr::textOf(raised_.bstrHelpFile), Sample::helpFile);
        EXPECT_EQ(raised_.dwHelpContext, static_cast<DWORD>(Sample::helpContext));
        EXPECT_EQ(raised_.pfnDeferredFillIn, nullptr);

        EXPECT_EQ(tests::errorOfInterface(raised_.scode),
                  (tests::ErrorSaid{status, Sample::source, Sample::description, Sample::helpContext}));
        // Without an EXCEPINFO the status itself says it.
        Variant argument = v(number);
        DISPPARAMS given{&argument, nullptr, 1, 0};
        EXPECT_EQ(static_cast<std::uint32_t>(
                      dispatch_->Invoke(idOf(L"Fail"), IID_NULL, 0, both, &given, nullptr, nullptr, nullptr)),
                  status);
        SetErrorInfo(0, nullptr);
    }
    EXPECT_EQ(raisedBy(L"FailStrangely"), 0x800A0005);
    EXPECT_EQ(raisedBy(L"Add"), 0x800A01C1);
    EXPECT_EQ(raisedBy(L"Add", v(u"un")), 0x800A000D);
    const auto support = dispatch_.as<ISupportErrorInfo>();
    ASSERT_TRUE(support);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IDispatch), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IPersist), S_FALSE);
}

TEST_F(ObjectDispatchTest, WritesBackToWhatTheCallerHas) {
    Variant variable = v(u"avant");
    LONG number = 1;
    BSTR text = Bstr(u"avant").release();
    IDispatch* object = nullptr;
    EXPECT_EQ(call(L"Change", Variant::reference(variable), v(u"après")), S_OK);
    EXPECT_EQ(VariantReader().read(variable), Value(u"après"));
    EXPECT_EQ(call(L"Change", reference(VT_I4, &number), v(5.0)), S_OK);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(call(L"Change", reference(VT_BSTR, &text), v(12)), S_OK);
    EXPECT_EQ(Bstr::textOf(text), u"12");
    EXPECT_EQ(call(L"Change", reference(VT_DISPATCH, &object), v(sample_)), S_OK);
    EXPECT_EQ(object, dispatch_.get());
    EXPECT_EQ(call(L"Change", reference(VT_DISPATCH, &object), v(nullptr)), S_OK);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(raisedBy(L"Change", reference(VT_I4, &number), v(u"cinq")), 0x800A000D);
    EXPECT_EQ(raisedBy(L"Change", reference(VT_I4, nullptr), v(1)), 0x800A0005);
    variable = Variant();
    variable.vt = VT_NULL;
    EXPECT_EQ(call(L"Echo", Variant::reference(variable)), S_OK);
    EXPECT_EQ(variable.vt, VT_NULL) << "what is not written stays what it was";
    SysFreeString(text);
}

/// Writes its arguments; Write raises then.
class Writer final : public Published {
public:
    [[nodiscard]] const MemberTable& members() const override {
        static const MemberTable table{method<&Writer::Write>(u"Write"), method<&Writer::Write>(u"WriteAll")};
        return table;
    }
    Value invoke(const Name& name, Access /*access*/, std::span<Value> arguments) override {
        for (const Value& argument : arguments) {
            *argument.variable() = u"écrit";
        }
        if (name.text() == u"Write") {
            raise(RunTimeError::Overflow);
        }
        return Empty();
    }
    void Write() const {}
};

TEST_F(ObjectDispatchTest, WritesBackWhatItCanWhereItRaises) {
    dispatch_ = dispatchOf(std::make_shared<Writer>());
    LONG number = 1;
    Variant first;
    Variant last;
    EXPECT_EQ(raisedBy(L"Write", Variant::reference(first)), 0x800A0006);
    EXPECT_EQ(VariantReader().read(first), Value(u"écrit"));
    first = Variant();
    EXPECT_EQ(raisedBy(L"WriteAll", Variant::reference(first), reference(VT_I4, &number), Variant::reference(last)),
              0x800A000D);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(VariantReader().read(first), Value(u"écrit"));
    EXPECT_EQ(VariantReader().read(last), Value(u"écrit"));
}

/// Lets go of the client's reference to itself in a call.
class LastHeld final : public Published {
public:
    LastHeld(ComPtr<IDispatch>& client, bool& isGone) : client_(client), isGone_(isGone) {}
    ~LastHeld() override { isGone_ = true; }
    [[nodiscard]] const MemberTable& members() const override {
        static const MemberTable table{method<&LastHeld::LetGo>(u"LetGo")};
        return table;
    }
    [[nodiscard]] bool LetGo() const {
        const bool& isGone = isGone_;
        client_ = nullptr;
        return isGone;
    }

private:
    ComPtr<IDispatch>& client_;
    bool& isGone_;
};

TEST_F(ObjectDispatchTest, OutlivesACallInWhichItsClientReleasesIt) {
    bool isGone = false;
    dispatch_ = dispatchOf(std::make_shared<LastHeld>(dispatch_, isGone));
    EXPECT_EQ(resultOf(L"LetGo"), Value(false));
    EXPECT_TRUE(isGone);
}

TEST_F(ObjectDispatchTest, KeepsIdentityAcrossTheBorder) {
    EXPECT_EQ(dispatchOf(sample_).get(), dispatch_.get()) << "one object, one identity";
    EXPECT_EQ(call(L"Child"), S_OK);
    const auto child = ComPtr(result_.pdispVal);
    EXPECT_EQ(call(L"Child"), S_OK);
    EXPECT_EQ(result_.pdispVal, child.get());
    EXPECT_EQ(objectOf(child.get()), sample_->Child()) << "an object of this library comes back as itself";

    Variant argument;
    argument.vt = VT_UNKNOWN;
    argument.punkVal = dispatch_.as<IUnknown>().release();
    EXPECT_EQ(call(L"Echo", std::move(argument)), S_OK);
    EXPECT_EQ(result_.pdispVal, dispatch_.get());

    // Released by everyone, it stands for the object anew.
    const std::weak_ptr<Sample> left = std::exchange(sample_, nullptr);
    EXPECT_FALSE(left.expired());
    result_ = Variant();
    dispatch_ = nullptr;
    EXPECT_TRUE(left.expired());
}

} // namespace object_dispatch_tests
