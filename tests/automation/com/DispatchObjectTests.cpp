#include "automation/WithoutRetry.h"
#include "automation/com/ComError.h"
#include "automation/com/DispatchObject.h"
#include "automation/com/Objects.h"
#include "automation/com/Variant.h"
#include "automation/com/WideText.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <string>
#include <thread>
#include <vector>

namespace dispatch_object_tests {

using namespace automation;
using namespace automation::com;
using Clock = std::chrono::steady_clock;

/// A server that notes what it is asked and answers as it is told.
class Server final : public ComObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* /*count*/) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT /*count*/, LCID /*locale*/,
                                            DISPID* ids) noexcept override {
        lookUps.emplace_back(names[0]);
        *ids = static_cast<DISPID>(names[0][0]);
        const HRESULT status = next(lookUpStatuses);
        std::this_thread::sleep_for(status == S_OK ? lookUpTime : std::chrono::milliseconds::zero());
        return status;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD flags, DISPPARAMS* given,
                                     VARIANT* result, EXCEPINFO* raised, UINT* /*wrong*/) noexcept override {
        calls.push_back({id, flags, given->cArgs, given->cNamedArgs == 1 ? *given->rgdispidNamedArgs : 0});
        for (UINT i = 0; i < given->cArgs; ++i) {
            if (given->rgvarg[i].vt == (VT_BYREF | VT_VARIANT) && !leavesAlone) {
                given->rgvarg[i].pvarVal->vt = VT_I4;
                given->rgvarg[i].pvarVal->lVal = static_cast<LONG>(i);
            }
        }
        const HRESULT status = next(statuses);
        if (status == S_OK && result != nullptr && answer != nullptr) {
            result->vt = VT_DISPATCH;
            result->pdispVal = ComPtr(answer).release();
        }
        if (status == DISP_E_EXCEPTION) {
            *raised = toRaise;
            raised->bstrSource = SysAllocString(toRaise.bstrSource);
            raised->bstrDescription = SysAllocString(toRaise.bstrDescription);
            raised->bstrHelpFile = SysAllocString(toRaise.bstrHelpFile);
        }
        return status;
    }

    struct Call {
        DISPID id;
        WORD flags;
        UINT arguments;
        DISPID named;
        friend bool operator==(const Call&, const Call&) = default;
    };

    std::vector<std::wstring> lookUps;
    std::vector<Call> calls;
    std::deque<HRESULT> lookUpStatuses; ///< one a call; S_OK when none is left
    std::deque<HRESULT> statuses;
    std::chrono::milliseconds lookUpTime{}; ///< of those taken
    IDispatch* answer = nullptr;
    EXCEPINFO toRaise{};
    bool leavesAlone = false;

private:
    static HRESULT next(std::deque<HRESULT>& list) {
        if (list.empty()) {
            return S_OK;
        }
        const HRESULT status = list.front();
        list.pop_front();
        return status;
    }
};

class DispatchObjectTest : public testing::Test {
protected:
    Value invoke(const Name& name, Access access = Access::Get, std::vector<Value> arguments = {}) {
        return object_->invoke(name, access, arguments);
    }
    std::int32_t numberRaised(const Name& name = u"M", Access access = Access::Get, std::vector<Value> arguments = {}) {
        return errorNumber([&] { invoke(name, access, std::move(arguments)); });
    }
    /// Seconds that a call takes that its server refuses.
    double secondsRefused(const Name& name = u"M") {
        const auto start = Clock::now();
        EXPECT_EQ(numberRaised(name), remote::callRejected);
        return std::chrono::duration<double>(Clock::now() - start).count();
    }
    void connectAnew() {
        server_ = makeCom<Server>();
        object_ = objectOf(server_.get());
    }

    ComPtr<Server> server_ = makeCom<Server>();
    ObjectPtr object_ = objectOf(server_.get());
};

using Names = std::vector<std::wstring>;

TEST_F(DispatchObjectTest, LooksANameUpOncePerClassAndServer) {
    const auto childServer = makeCom<Server>();
    server_->answer = childServer.get();
    constexpr Name visible{u"Visible", u"Application"};
    for (int i = 0; i < 3; ++i) {
        const auto child = invoke(visible).to<ObjectPtr>();
        child->invoke({u"VISIBLE", u"application"}, Access::Get, {});
        child->invoke({u"Visible", u"Shape"}, Access::Get, {});
        child->invoke(u"Unscoped", Access::Get, {});
        child->invoke(u"unscoped", Access::Get, {});
    }
    EXPECT_EQ(server_->lookUps, (Names{L"Visible"}));
    EXPECT_EQ(childServer->lookUps, (Names{L"Visible", L"Unscoped", L"Unscoped", L"Unscoped"}));

    // As long as an object of the server is held, its reference means the same server.
    objectOf(server_.get())->invoke(visible, Access::Get, {});
    EXPECT_EQ(server_->lookUps.size(), 1U);
    object_ = nullptr;
    objectOf(server_.get())->invoke(visible, Access::Get, {});
    EXPECT_EQ(server_->lookUps.size(), 2U);
}

TEST_F(DispatchObjectTest, StatesHowAMemberIsReached) {
    constexpr WORD both = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    invoke(u"G", Access::Get, {1, 2});
    invoke(u"C", Access::Call);
    invoke(u"E", Access::GetOrCall);
    invoke(defaultMember, Access::Get, {1});
    invoke(u"P", Access::Put, {1, 2});
    server_->statuses = {DISP_E_MEMBERNOTFOUND, S_OK};
    invoke(u"O", Access::Put, {object_});
    EXPECT_EQ(server_->calls, (std::vector<Server::Call>{{'G', both, 2, 0},
                                                         {'C', both, 0, 0},
                                                         {'E', both, 0, 0},
                                                         {DISPID_VALUE, both, 1, 0},
                                                         {'P', DISPATCH_PROPERTYPUT, 2, DISPID_PROPERTYPUT},
                                                         {'O', DISPATCH_PROPERTYPUT, 1, DISPID_PROPERTYPUT},
                                                         {'O', DISPATCH_PROPERTYPUTREF, 1, DISPID_PROPERTYPUT}}));
    // Only an object is tried by reference, and only where there is no such member.
    server_->statuses = {DISP_E_MEMBERNOTFOUND};
    EXPECT_EQ(numberRaised(u"P", Access::Put, {1}), 438);
    server_->statuses = {E_FAIL};
    EXPECT_EQ(numberRaised(u"P", Access::Put, {object_}), E_FAIL);
    EXPECT_EQ(numberRaised(u"P", Access::Put), 450);
    EXPECT_EQ(server_->calls.size(), 9U);
}

TEST_F(DispatchObjectTest, WritesArgumentsBackAlsoFromAMemberThatRaises) {
    for (const HRESULT status : {S_OK, DISP_E_EXCEPTION}) {
        Value first = u"a";
        Value second = u"b";
        server_->statuses = {status};
        numberRaised(u"M", Access::Call, {Value::reference(first), 5, Value::reference(second)});
        EXPECT_EQ(first, Value(2));
        EXPECT_EQ(second, Value(0));
    }
    // An object that the callee leaves alone stays the very same.
    server_->leavesAlone = true;
    Value same = object_;
    invoke(u"M", Access::Call, {Value::reference(same)});
    EXPECT_EQ(same, Value(object_));
}

TEST_F(DispatchObjectTest, SaysWhatIDispatchRefusesAsTheRunTimeDoes) {
    const struct {
        HRESULT status;
        std::int32_t number;
    } cases[] = {
        {DISP_E_MEMBERNOTFOUND, 438},
        {DISP_E_UNKNOWNNAME, 438},
        {DISP_E_BADPARAMCOUNT, 450},
        {DISP_E_PARAMNOTOPTIONAL, 449},
        {DISP_E_TYPEMISMATCH, 13},
        {DISP_E_OVERFLOW, 6},
        {DISP_E_BADINDEX, 9},
        {E_OUTOFMEMORY, 7},
        {static_cast<HRESULT>(0x800A01A8), 424},
        {E_ACCESSDENIED, E_ACCESSDENIED},
        {static_cast<HRESULT>(0x80048240), static_cast<std::int32_t>(0x80048240)},
    };
    for (const auto& [status, number] : cases) {
        server_->statuses = {status};
        EXPECT_EQ(numberRaised(), number) << std::hex << status;
    }
    EXPECT_EQ(server_->calls.size(), std::size(cases)) << "none is tried again";
    server_->lookUpStatuses = {DISP_E_UNKNOWNNAME};
    EXPECT_EQ(numberRaised(u"Unknown"), 438);
    server_->statuses = {E_ACCESSDENIED};
    EXPECT_FALSE(::errorOf([&] { invoke(u"M"); })->description().empty());
}

int filledIn = 0;

HRESULT STDAPICALLTYPE fillIn(EXCEPINFO* /*raised*/) {
    ++filledIn;
    return S_OK;
}

TEST_F(DispatchObjectTest, KeepsWhatAMemberRaises) {
    Bstr source(u"Microsoft Office PowerPoint");
    Bstr description(u"L'élément n'existe pas");
    Bstr helpFile(u"aide.chm");
    server_->toRaise.bstrSource = source.get();
    server_->toRaise.bstrDescription = description.get();
    server_->toRaise.bstrHelpFile = helpFile.get();
    server_->toRaise.dwHelpContext = 12;
    filledIn = 0;
    server_->toRaise.pfnDeferredFillIn = &fillIn;
    const struct {
        HRESULT scode;
        WORD code;
        std::int32_t number;
    } cases[] = {
        {static_cast<HRESULT>(0x80048240), 0, static_cast<std::int32_t>(0x80048240)},
        {static_cast<HRESULT>(0x800A0009), 0, 9},
        {DISP_E_TYPEMISMATCH, 0, 13},
        {0, 1004, 1004},
        {0, 0, DISP_E_EXCEPTION},
        {remote::callRejected, 0, remote::callRejected},
        {remote::serverUnavailable, 0, remote::serverUnavailable},
    };
    for (const auto& [scode, code, number] : cases) {
        server_->toRaise.scode = scode;
        server_->toRaise.wCode = code;
        server_->statuses = {DISP_E_EXCEPTION};
        const auto error = ::errorOf([&] { invoke(u"M"); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->number(), number);
        if (number != DISP_E_EXCEPTION) {
            EXPECT_EQ(error->source(), u"Microsoft Office PowerPoint");
            EXPECT_EQ(error->description(), u"L'élément n'existe pas");
            EXPECT_EQ(error->helpFile(), u"aide.chm");
            EXPECT_EQ(error->helpContext(), 12);
        }
    }
    EXPECT_EQ(server_->calls.size(), std::size(cases)) << "what a member raises is no refusal of the call";
    EXPECT_EQ(filledIn, 0);
    server_->toRaise = {};
    server_->toRaise.scode = static_cast<HRESULT>(0x800A0009);
    server_->statuses = {DISP_E_EXCEPTION};
    EXPECT_EQ(::errorOf([&] { invoke(u"M"); })->description(), describe(RunTimeError::SubscriptOutOfRange));
}

TEST_F(DispatchObjectTest, AsksABusyServerAgainForAWhile) {
    server_->lookUpStatuses = {remote::callRejected, remote::retryLater};
    server_->statuses = {remote::retryLater, remote::callRejected, remote::retryLater, E_FAIL};
    EXPECT_EQ(numberRaised(), E_FAIL);
    EXPECT_EQ(server_->lookUps.size(), 3U);
    EXPECT_EQ(server_->calls.size(), 4U);

    // The look-up of a name and the call have two seconds together.
    server_->calls.clear();
    server_->statuses.assign(1000, remote::callRejected);
    server_->lookUpStatuses.assign(8, remote::callRejected); // a second, nearly
    const double waited = secondsRefused(u"New");
    EXPECT_TRUE(server_->lookUpStatuses.empty());
    EXPECT_GT(waited, 1.5);
    EXPECT_LT(waited, 2.5);
    EXPECT_GT(server_->calls.size(), 3U);

    server_->calls.clear();
    const WithoutRetry once;
    EXPECT_EQ(numberRaised(), remote::callRejected);
    EXPECT_EQ(server_->calls.size(), 1U);
}

TEST_F(DispatchObjectTest, WaitsNoLongerThanAnOperationMay) {
    server_->lookUpStatuses = {remote::callRejected};
    server_->lookUpTime = std::chrono::milliseconds(2100);
    server_->statuses = {remote::callRejected};
    double waited = 0;
    const auto accessOften = [&] {
        EXPECT_EQ(numberRaised(), noError) << "a call that is taken is none waited for";
        server_->statuses.assign(1000, remote::callRejected);
        for (int i = 0; i < 5; ++i) {
            waited += secondsRefused();
        }
        return S_OK;
    };
    EXPECT_EQ(guarded([&] { return guarded(accessOften); }), S_OK);
    EXPECT_GT(waited, 5.5);
    EXPECT_LT(waited, 6.5) << "not two seconds each";
    server_->statuses.assign(3, remote::callRejected);
    EXPECT_EQ(guarded([&] { return numberRaised(); }), noError) << "the next one has patience of its own";
}

TEST_F(DispatchObjectTest, NeverCallsADeadServer) {
    // The end of the process is that of all its objects; an object's own end is not.
    for (const auto& [number, ofOthers] :
         {std::pair(remote::serverUnavailable, remote::serverUnavailable),
          std::pair(remote::callFailed, remote::serverUnavailable),
          std::pair(remote::callNotExecuted, remote::serverUnavailable),
          std::pair(remote::serverDied, remote::serverUnavailable),
          std::pair(remote::serverDiedBefore, remote::serverUnavailable), std::pair(remote::disconnected, noError),
          std::pair(remote::objectNotConnected, noError)}) {
        connectAnew();
        const auto childServer = makeCom<Server>();
        server_->answer = childServer.get();
        const auto child = invoke(u"M").to<ObjectPtr>();
        server_->statuses = {number};
        for (const Name& name : {Name(u"M"), Name(u"M"), Name(u"Other")}) {
            EXPECT_EQ(numberRaised(name), number);
        }
        EXPECT_EQ(server_->calls.size(), 2U);
        EXPECT_EQ(server_->lookUps.size(), 1U);
        EXPECT_EQ(errorNumber([&] { child->invoke(u"M", Access::Get, {}); }), ofOthers);
        EXPECT_EQ(childServer->calls.size(), ofOthers == noError ? 1U : 0U);
    }
    connectAnew();
    server_->lookUpStatuses = {remote::serverUnavailable};
    EXPECT_EQ(numberRaised(), remote::serverUnavailable);
    EXPECT_EQ(numberRaised(), remote::serverUnavailable);
    EXPECT_EQ(server_->lookUps.size(), 1U);
    EXPECT_TRUE(server_->calls.empty());
}

TEST_F(DispatchObjectTest, IsTheSameByIdentity) {
    const auto other = makeCom<Server>();
    server_->answer = server_.get();
    const auto itself = invoke(u"Self").to<ObjectPtr>();
    EXPECT_NE(itself, object_);
    EXPECT_TRUE(isSame(itself, object_));
    EXPECT_FALSE(isSame(objectOf(other.get()), object_));
    EXPECT_EQ(dispatchOf(object_).get(), server_.get()) << "it leaves as it came";
}

} // namespace dispatch_object_tests
