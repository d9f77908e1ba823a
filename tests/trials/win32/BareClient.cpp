#include "tests/trials/BareClient.h"

#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/Variant.h"
#include "platform/win32/Win32Servers.h"

#include <algorithm>
#include <optional>

namespace trials {

namespace {

using automation::com::check;
using automation::com::ComPtr;
using automation::com::Variant;

/// A call as COM takes it.
struct Call {
    std::size_t target;
    std::u16string name; ///< with the class, since a number belongs to that
    std::wstring member;
    bool isPut;
    std::vector<Variant> arguments; ///< the last one first
};

class BareClient {
public:
    explicit BareClient(const std::vector<trace::RecordedCall>& recorded)
        : application_(automation::com::dispatchOf(platform::Win32Servers().attach(u"PowerPoint.Application.11"))),
          lastCalls_(recorded.size() + 1) {
        for (const trace::RecordedCall& each : recorded) {
            calls_.push_back({each.target,
                              each.className + u'.' + each.member,
                              {each.member.begin(), each.member.end()},
                              each.access == automation::Access::Put,
                              {}});
            std::transform(each.arguments.rbegin(), each.arguments.rend(), std::back_inserter(calls_.back().arguments),
                           automation::com::variantOf);
            lastCalls_[each.target] = calls_.size();
        }
    }

    void makeCalls() {
        std::vector<ComPtr<IDispatch>> objects(calls_.size() + 1);
        objects[0] = application_;
        for (std::size_t i = 1; i <= calls_.size(); ++i) {
            Call& call = calls_[i - 1];
            Variant result = resultOf(call, *objects[call.target].get());
            if (result.vt == VT_DISPATCH && lastCalls_[i] > i) {
                objects[i] = ComPtr<IDispatch>::adopt(result.release().pdispVal);
            }
            if (lastCalls_[call.target] == i) {
                objects[call.target] = nullptr;
            }
        }
    }

private:
    Variant resultOf(Call& call, IDispatch& target) {
        const auto [id, isNew] = ids_.try_emplace(call.name, DISPID_VALUE);
        if (isNew && !call.member.empty()) {
            LPOLESTR member = call.member.data();
            check(target.GetIDsOfNames(IID_NULL, &member, 1, LOCALE_USER_DEFAULT, &id->second));
        }
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{call.arguments.data(), call.isPut ? &named : nullptr,
                              static_cast<UINT>(call.arguments.size()), call.isPut ? 1U : 0U};
        const WORD flags = call.isPut ? DISPATCH_PROPERTYPUT : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
        Variant result;
        check(target.Invoke(id->second, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                            call.isPut ? nullptr : &result, nullptr, nullptr));
        return result;
    }

    ComPtr<IDispatch> application_;
    std::vector<Call> calls_;
    std::vector<std::size_t> lastCalls_; ///< on what each call has handed out, from 1; on the application first
    std::map<std::u16string, DISPID> ids_;
};

} // namespace

std::function<void()> bareClient(const std::vector<trace::RecordedCall>& calls) {
    return [client = std::make_shared<BareClient>(calls)] { client->makeCalls(); };
}

} // namespace trials
