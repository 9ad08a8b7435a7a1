#include "platform/print/recording_surface.h"

#include <nlohmann/json.hpp>

namespace tendo {

namespace {

CallValue Owned(const SurfaceValue& value) {
    if (const auto* text = std::get_if<std::string_view>(&value)) return std::string(*text);
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    return std::get<std::int32_t>(value);
}

}  // namespace

std::string CallJson(const SurfaceCall& call) {
    nlohmann::ordered_json json = {{"op", call.op}};
    for (const auto& [name, value] : call.fields)
        std::visit([&, &key = name](const auto& held) { json[key] = held; }, value);
    return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

RecordingSurface::RecordingSurface(PrintSurface& inner) : inner_(inner) {
    inner_.NewPageEvent = [this] {
        if (NewPageEvent) NewPageEvent();
    };
}

std::string RecordingSurface::Log() const {
    std::string log;
    for (const SurfaceCall& call : calls_)
        log += CallJson(call) + "\n";
    return log;
}

void RecordingSurface::NewPage() {
    calls_.push_back({"NewPage", {}});
    inner_.NewPage();
}

void RecordingSurface::DrawLine(int x1, int y1, int x2, int y2) {
    calls_.push_back({"DrawLine", {{"x1", x1}, {"y1", y1}, {"x2", x2}, {"y2", y2}}});
    inner_.DrawLine(x1, y1, x2, y2);
}

void RecordingSurface::Set(SurfaceOp op, const SurfaceValue& value) {
    if (op == SurfaceOp::Action && value == SurfaceValue(3)) calls_.clear();
    calls_.push_back({SurfaceOpName(op), {{"value", Owned(value)}}});
    inner_.Set(op, value);
}

void RecordingSurface::WriteTable(std::string_view format, std::string_view header,
                                  std::string_view body, std::optional<std::int32_t> headerShade) {
    SurfaceCall call{"AddTable",
                     {{"format", std::string(format)},
                      {"header", std::string(header)},
                      {"body", std::string(body)}}};
    if (headerShade) call.fields.emplace_back("shade", *headerShade);
    calls_.push_back(std::move(call));
    inner_.WriteTable(format, header, body, headerShade);
}

}  // namespace tendo
