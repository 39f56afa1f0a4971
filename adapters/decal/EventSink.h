// Events of the framework's objects.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "adapters/decal/Com.h"
#include "adapters/decal/Win32.h"

namespace ombrel::decal {

// What an event brings, in the order of its declaration. An argument that is missing or of another kind throws Failure.
class EventArguments {
public:
    explicit EventArguments(const DISPPARAMS& parameters) : parameters_(parameters) {}

    std::string Text(unsigned index) const { return TextOf(At(index)); }
    std::int32_t Long(unsigned index) const { return LongOf(At(index)); }
    bool Bool(unsigned index) const { return BoolOf(At(index)); }

    // The object in the interface that is asked for; nothing when there is none.
    template <class I>
    Com<I> Object(unsigned index) const {
        return Com<I>::Of(ObjectOf(At(index)));
    }

    // Writes an answer back; does nothing where the caller takes none.
    void Answer(unsigned index, bool value) const;

private:
    const VARIANT& At(unsigned index) const;

    const DISPPARAMS& parameters_;
};

// A connection to the events of one object, which lasts as long as this does. Events without a handler are ignored. An
// object that raises no events of that kind makes a connection that stays silent.
class Events {
public:
    using Handler = std::function<void(const EventArguments&)>;
    using Table = std::vector<std::pair<DISPID, Handler>>;

    Events() = default;
    Events(IUnknown* source, const GUID& events, Table handlers);
    ~Events();
    Events(Events&& other) noexcept;
    Events& operator=(Events&& other) noexcept;

    void Disconnect();

private:
    class Sink;

    Com<Sink> sink_;
    Com<IUnknown> point_;
    DWORD cookie_ = 0;
};

// Runs the handler of an event slot, which may be emptied while it runs.
template <class... Parameters, class... Values>
void Raise(const std::function<void(Parameters...)>& slot, Values&&... values) {
    if (const auto handler = slot) handler(std::forward<Values>(values)...);
}

}  // namespace ombrel::decal
