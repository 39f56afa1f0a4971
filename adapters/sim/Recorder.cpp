#include "adapters/sim/Recorder.h"

#include <utility>

#include "adapters/sim/JsonLine.h"

namespace ombrel::sim {
namespace {

constexpr std::size_t kBufferSize = 1 << 16;

constexpr std::pair<std::string_view, CallKind> kKinds[] = {
    {"chat", CallKind::kChat},     {"command", CallKind::kCommand}, {"item", CallKind::kItem},
    {"input", CallKind::kInput},   {"sound", CallKind::kSound},     {"vendor", CallKind::kVendor},
    {"hotkey", CallKind::kHotkey}, {"host", CallKind::kHost},       {"draw", CallKind::kDraw},
};

}  // namespace

Trace::Trace() {
    kinds_.fill(true);
    kinds_[static_cast<std::size_t>(CallKind::kDraw)] = false;
    kinds_[static_cast<std::size_t>(CallKind::kQuestion)] = false;
}

std::optional<Trace> Trace::Parse(std::string_view list) {
    Trace trace;
    trace.kinds_.fill(false);
    while (true) {
        const std::size_t comma = list.find(',');
        const std::string_view name = list.substr(0, comma);
        bool known = false;
        for (const auto& [kind_name, kind] : kKinds) {
            if (name != kind_name && name != "all") continue;
            trace.kinds_[static_cast<std::size_t>(kind)] = known = true;
        }
        if (!known) return std::nullopt;
        if (comma == std::string_view::npos) return trace;
        list.remove_prefix(comma + 1);
    }
}

void Recorder::Call(const sim::Call& call) {
    const Operation& operation = Operations()[call.operation];
    if (!trace_.Has(operation.kind)) return;

    JsonLine line(buffer_);
    line.At(clock_.now());
    line.Add("call", operation.name);
    for (const Argument& argument : call.arguments) {
        std::visit([&](const auto& value) { line.Add(argument.name, value); }, argument.value);
    }
    if (call.failed) line.Add("failed", true);
    line.End();
    Wrote();
}

void Recorder::Result(std::string_view event, std::string_view name, bool value) {
    JsonLine line(buffer_);
    line.At(clock_.now());
    line.Add("result", event);
    line.Add(name, value);
    line.End();
    Wrote();
}

void Recorder::Answer(std::string_view query, std::string_view name, const nlohmann::ordered_json& fields) {
    JsonLine line(buffer_);
    line.At(clock_.now());
    line.Add("answer", query);
    if (!name.empty()) line.Add("name", name);
    for (const auto& [key, value] : fields.items()) line.AddJson(key, value);
    line.End();
    Wrote();
}

void Recorder::Note(std::string_view text) {
    JsonLine line(buffer_);
    line.At(clock_.now());
    line.Add("note", text);
    line.End();
    Wrote();
}

void Recorder::Flush() {
    out_.write(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    out_.flush();
    buffer_.clear();
}

void Recorder::Wrote() {
    if (buffer_.size() >= kBufferSize) Flush();
}

}  // namespace ombrel::sim
