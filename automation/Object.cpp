#include "automation/Object.h"

#include <atomic>

namespace automation {

namespace {
std::atomic<std::size_t>& aliveObjects() noexcept {
    static std::atomic<std::size_t> count = 0;
    return count;
}
} // namespace

Object::Object() noexcept {
    aliveObjects().fetch_add(1, std::memory_order_relaxed);
}

Object::~Object() {
    aliveObjects().fetch_sub(1, std::memory_order_relaxed);
}

std::size_t Object::alive() noexcept {
    return aliveObjects().load(std::memory_order_relaxed);
}

bool isSame(const ObjectPtr& left, const ObjectPtr& right) noexcept {
    return left && right ? left->isSame(*right) : left == right;
}

} // namespace automation
