// The objects of one kind that the plug-in holds: each look-up gives it one of its own, and an event reaches all of
// them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

namespace ombrel::sim {

template <class T>
class Copies {
public:
    // A copy's membership, which ends with the copy or with the client, whichever goes first.
    class Place {
    public:
        Place(Copies& copies, T& copy) : copies_(&copies), copy_(&copy) { copies.places_.push_back(this); }
        ~Place() {
            if (copies_) copies_->Leave(*this);
        }
        Place(const Place&) = delete;
        Place& operator=(const Place&) = delete;

    private:
        friend class Copies;
        Copies* copies_;
        T* copy_;
    };

    Copies() = default;
    ~Copies() {
        for (Place* place : places_) {
            if (place) place->copies_ = nullptr;
        }
    }
    Copies(const Copies&) = delete;
    Copies& operator=(const Copies&) = delete;

    // Raises an event on each copy that was there at its start and still is. A slot may end or bind anew its own
    // object.
    template <class Base, class... Parameters, class... Arguments>
    void Raise(std::function<void(Parameters...)> Base::*event, Arguments&&... arguments) {
        const Walk walk(*this);
        const std::size_t count = places_.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (!places_[i]) continue;
            if (const auto slot = places_[i]->copy_->*event) slot(arguments...);
        }
    }

private:
    // Gaps stay open while an event walks over them.
    struct Walk {
        explicit Walk(Copies& owner) : copies(owner) { ++copies.walks_; }
        ~Walk() {
            if (--copies.walks_ == 0) std::erase(copies.places_, nullptr);
        }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;
        Copies& copies;
    };

    void Leave(Place& place) {
        if (walks_ > 0)
            std::ranges::replace(places_, &place, nullptr);
        else
            std::erase(places_, &place);
    }

    std::vector<Place*> places_;
    int walks_ = 0;
};

}  // namespace ombrel::sim
