#include "host_kit/session/session_log.h"

#include "host_kit/memory/utf8.h"

#include <string_view>
#include <type_traits>

namespace Rotavue::HostKit {

namespace {

/// A JSON object that grows member by member.
class LogObject {
public:
    LogObject& put(std::string_view name, const CallValue& value) {
        appendName(name);
        appendJson(text_, value);
        return *this;
    }

    LogObject& put(std::string_view name, const std::vector<CallValue>& list) {
        appendName(name);
        appendList(text_, list, "[]");
        return *this;
    }

    LogObject& put(std::string_view name, const LogObject& object) {
        appendName(name);
        text_ += object.text();
        return *this;
    }

    std::string text() const { return text_ + '}'; }

private:
    void appendName(std::string_view name) {
        if (text_.size() > 1) text_ += ", ";
        appendJson(text_, name);
        text_ += ": ";
    }

    std::string text_ = "{";
};

LogObject objectOf(const LogMembers& members) {
    LogObject object;
    for (const auto& [name, value] : members)
        object.put(name, value);
    return object;
}

LogObject lineOf(const SentMessage& message) {
    LogObject line;
    line.put("step", CallValue{static_cast<std::int64_t>(message.step)});
    line.put("message", toCallValue(message.code));
    return line;
}

/// A success is its number, a failure its hexadecimal text.
CallValue statusValue(std::int32_t status) {
    if (status >= 0) return toCallValue(status);
    return {statusText(static_cast<std::uint32_t>(status))};
}

CallValue resultValue(std::monostate) {
    return {};
}

CallValue resultValue(std::int16_t number) {
    return toCallValue(number);
}

CallValue resultValue(bool yes) {
    return toCallValue(yes);
}

CallValue resultValue(const MessageAnswer::FourIntegers& numbers) {
    return toCallValue(std::vector<std::int32_t>(numbers.begin(), numbers.end()));
}

}  // namespace

void SessionLog::onReturn(const Call& call) {
    LogObject line;
    line.put("call", CallValue{std::string(rowOf(call.operation).name)});
    if (call.on) line.put("on", *call.on);
    line.put("args", call.arguments);
    if (call.result) line.put("result", *call.result);
    if (call.failed) line.put("failed", CallValue{statusText(*call.failed)});
    write(line.text());
}

void SessionLog::clipboard(const std::wstring& text) {
    write(LogObject().put("clipboard", toCallValue(text)).text());
}

void SessionLog::answered(const SentMessage& message, std::int32_t status,
                          const MessageAnswer& answer) {
    LogObject line = lineOf(message);
    line.put("status", statusValue(status));
    const auto put = [&line](const auto& value) { line.put("result", resultValue(value)); };
    if (answer.value().index() != 0) std::visit(put, answer.value());
    write(line.text());
}

void SessionLog::threw(const SentMessage& message, const LogMembers& failure) {
    write(lineOf(message).put("error", objectOf(failure)).text());
}

void SessionLog::end(const std::map<std::wstring, std::wstring>& setup, std::int64_t references) {
    std::map<std::string, std::string> byCode;
    for (const auto& [key, text] : setup)
        byCode[toUtf8(key)] = toUtf8(text);
    LogObject texts;
    for (const auto& [key, text] : byCode)
        texts.put(key, CallValue{text});
    LogObject end;
    end.put("setup", texts).put("references", CallValue{references});
    write(LogObject().put("end", end).text());
}

void SessionLog::write(const std::string& line) {
    out_.write(line.data(), static_cast<std::streamsize>(line.size())).put('\n');
}

}  // namespace Rotavue::HostKit
