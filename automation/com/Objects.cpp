#include "automation/com/Objects.h"

#include "automation/Error.h"
#include "automation/com/DispatchObject.h"
#include "automation/com/ObjectDispatch.h"
#include "automation/observe/Observer.h"

#include <atomic>
#include <mutex>
#include <unordered_map>

namespace automation::com {

namespace {

/// Who stands for whom, in both directions. No reference is dropped under its lock.
struct Register {
    std::mutex mutex;
    std::unordered_map<const Object*, const Standing*> byObject;
    std::unordered_map<const IUnknown*, const Standing*> byIdentity;
    std::unordered_map<const IUnknown*, std::weak_ptr<DispatchObject>> servers;
};

Register& known() {
    static Register instance;
    return instance;
}

ObjectPtr ownObject(const IUnknown* identity) {
    Register& all = known();
    const std::lock_guard lock(all.mutex);
    const auto found = all.byIdentity.find(identity);
    return found == all.byIdentity.end() ? nullptr : found->second->object();
}

ComPtr<IDispatch> ownDispatch(const Object* object) {
    Register& all = known();
    const std::lock_guard lock(all.mutex);
    const auto found = all.byObject.find(object);
    return found == all.byObject.end() ? nullptr : found->second->dispatch();
}

std::atomic<DispatchMaker> maker = nullptr;

ComPtr<IDispatch> madeFor(const std::shared_ptr<Published>& object) {
    const DispatchMaker make = maker;
    if (ComPtr<IDispatch> made = make != nullptr ? make(object) : nullptr) {
        return made;
    }
    return ComPtr<IDispatch>(makeCom<ObjectDispatch>(object).get());
}

ObjectPtr serverOf(IDispatch* dispatch, ComPtr<IUnknown> identity) {
    const IUnknown* const key = identity.get();
    auto fresh =
        std::make_shared<DispatchObject>(ComPtr(dispatch), std::move(identity), std::make_shared<ServerSession>());
    Register& all = known();
    const std::lock_guard lock(all.mutex);
    if (const auto found = all.servers.find(key); found != all.servers.end()) {
        if (ObjectPtr held = found->second.lock()) {
            return held;
        }
    }
    std::erase_if(all.servers, [](const auto& entry) { return entry.second.expired(); });
    all.servers.insert_or_assign(key, fresh);
    return fresh;
}

} // namespace

ObjectPtr objectOf(IDispatch* dispatch, const ServerSessionPtr& session) {
    if (dispatch == nullptr) {
        return nullptr;
    }
    ComPtr<IUnknown> identity = identityOf(dispatch);
    if (ObjectPtr own = ownObject(identity.get())) {
        return own;
    }
    return session ? std::make_shared<DispatchObject>(ComPtr(dispatch), std::move(identity), session)
                   : serverOf(dispatch, std::move(identity));
}

ComPtr<IDispatch> dispatchOf(const ObjectPtr& object) {
    const ObjectPtr inner = unobserved(object);
    if (!inner) {
        return {};
    }
    if (const auto foreign = std::dynamic_pointer_cast<DispatchObject>(inner)) {
        return foreign->dispatch();
    }
    if (ComPtr<IDispatch> standing = ownDispatch(inner.get())) {
        return standing;
    }
    if (const auto published = std::dynamic_pointer_cast<Published>(inner)) {
        return madeFor(published);
    }
    raise(RunTimeError::TypeMismatch);
}

void makeDispatchBy(DispatchMaker newMaker) noexcept {
    maker = newMaker;
}

Standing::Standing(ObjectPtr object, IDispatch* dispatch, IUnknown* identity, ReferenceCount& count)
    : object_(std::move(object)), dispatch_(dispatch), identity_(identity), count_(count) {
    Register& all = known();
    const std::lock_guard lock(all.mutex);
    all.byIdentity.insert_or_assign(identity_, this);
    try {
        all.byObject.insert_or_assign(object_.get(), this);
    } catch (...) {
        all.byIdentity.erase(identity_);
        throw;
    }
}

Standing::~Standing() {
    Register& all = known();
    const std::lock_guard lock(all.mutex);
    // Another one may have taken the place since the last reference to this one was dropped.
    if (const auto found = all.byObject.find(object_.get()); found != all.byObject.end() && found->second == this) {
        all.byObject.erase(found);
    }
    all.byIdentity.erase(identity_);
}

ComPtr<IDispatch> Standing::dispatch() const noexcept {
    return count_.addIfAlive() ? ComPtr<IDispatch>::adopt(dispatch_) : nullptr;
}

} // namespace automation::com
