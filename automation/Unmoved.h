#pragma once

namespace automation {

/// Base of what stays where it was made: neither copied nor moved.
class Unmoved {
public:
    Unmoved(const Unmoved&) = delete;
    Unmoved& operator=(const Unmoved&) = delete;
    Unmoved(Unmoved&&) = delete;
    Unmoved& operator=(Unmoved&&) = delete;

protected:
    Unmoved() = default;
    ~Unmoved() = default;
};

} // namespace automation
