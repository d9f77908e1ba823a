#pragma once

#include "simulator/files/records/Record.h"

#include <cassert>
#include <map>

namespace simulator::powerpoint {

/// A part of a document that can be saved by itself: the document, a master, a slide, its notes.
struct PersistObject {
    std::uint32_t id = 0;
    records::Record record;
};

/// The objects of a file, in the order of its stream, each with a number of its own.
class PersistObjects {
public:
    [[nodiscard]] const std::vector<PersistObject>& all() const noexcept { return objects_; }
    /// The record of an object; null where there is none.
    [[nodiscard]] const records::Record* find(std::uint32_t id) const noexcept {
        const auto found = places_.find(id);
        return found == places_.end() ? nullptr : &objects_[found->second].record;
    }
    [[nodiscard]] records::Record* find(std::uint32_t id) noexcept {
        const auto found = places_.find(id);
        return found == places_.end() ? nullptr : &objects_[found->second].record;
    }
    /// 0 where there are none.
    [[nodiscard]] std::uint32_t highestId() const noexcept { return places_.empty() ? 0 : places_.rbegin()->first; }

    /// Puts an object behind the others; its number must not be taken.
    void append(std::uint32_t id, records::Record record) {
        assert(!places_.contains(id));
        places_.emplace(id, objects_.size());
        objects_.push_back({id, std::move(record)});
    }
    template <typename Match> void eraseIf(const Match& match) {
        std::erase_if(objects_, [&](const PersistObject& each) { return match(each.id); });
        places_.clear();
        for (const PersistObject& each : objects_) {
            places_.emplace(each.id, places_.size());
        }
    }
    template <typename Visit> void forEach(const Visit& visit) {
        for (PersistObject& each : objects_) {
            visit(each.id, each.record);
        }
    }

private:
    std::vector<PersistObject> objects_;
    std::map<std::uint32_t, std::size_t> places_; ///< by number
};

} // namespace simulator::powerpoint
