#include "automation/Object.h"

namespace automation {

namespace {
/// What every object holds a share of: a counter costs that is always atomic more than the rest of a call does, where
/// one of shared references is so only in a program with a second thread.
const std::shared_ptr<const int> shared = std::make_shared<int>();
} // namespace

Object::Object() noexcept : share_(shared) {}

Object::~Object() = default;

std::size_t Object::alive() noexcept {
    return static_cast<std::size_t>(shared.use_count()) - 1;
}

bool isSame(const ObjectPtr& left, const ObjectPtr& right) noexcept {
    return left && right ? left->isSame(*right) || right->isSame(*left) : left == right;
}

} // namespace automation
