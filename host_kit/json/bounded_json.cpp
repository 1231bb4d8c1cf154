#include "host_kit/json/bounded_json.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Rotavue::HostKit {

namespace {

constexpr int NumberBeyondBoundsId = 406;  // the parser's own code of that fault

/// The parser's own words behind its headings: "...: syntax error while parsing value - ...".
std::string reasonIn(std::string_view words) {
    const std::size_t start = words.find(" - ");
    if (start == std::string_view::npos) return std::string(words);
    const std::string_view reason = words.substr(start + 3);
    return std::string(reason.substr(0, reason.find("; last read")));
}

/// Builds the value from the parser's events. The parser's own builder, asked to check each value,
/// would walk through a whole list again behind each object in it.
class BoundedBuilder final : public nlohmann::json_sax<Json> {
public:
    BoundedBuilder(std::string_view text, const JsonBounds& bounds, RepeatedMembers repeated)
        : text_(text), bounds_(bounds), repeated_(repeated) {}

    Json take() { return std::move(root_); }

    bool null() override { return put(nullptr); }
    bool boolean(bool value) override { return put(value); }
    bool number_integer(number_integer_t value) override { return put(value); }
    bool number_unsigned(number_unsigned_t value) override { return put(value); }
    bool number_float(number_float_t value, const string_t&) override { return put(value); }
    bool binary(binary_t&) override { return false; }

    bool string(string_t& value) override {
        countPart();
        return put(std::move(value));
    }

    bool start_object(std::size_t) override { return open(Json::object()); }
    bool start_array(std::size_t) override { return open(Json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(string_t& name) override {
        countPart();
        const bool refused = repeated_ == RepeatedMembers::Refused && open_.back()->contains(name);
        if (refused) refuse(JsonFault::Kind::RepeatedMember, std::move(name));
        key_ = std::move(name);
        return true;
    }

    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) override {
        const JsonFault::Kind kind = error.id == NumberBeyondBoundsId
                                         ? JsonFault::Kind::NumberBeyondBounds
                                         : JsonFault::Kind::NoJson;
        throw placed(faultOf(kind, reasonIn(error.what())), position > 0 ? position - 1 : 0);
    }

private:
    bool put(Json value) {
        place(std::move(value));
        return true;
    }

    bool open(Json container) {
        countPart();
        if (open_.size() == bounds_.depth) refuse(JsonFault::Kind::TooDeep);
        open_.push_back(&place(std::move(container)));
        return true;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    Json& place(Json value) {
        if (open_.empty()) return root_ = std::move(value);
        Json& parent = *open_.back();
        if (parent.is_object()) return parent[key_] = std::move(value);
        parent.push_back(std::move(value));
        return parent.back();
    }

    void countPart() {
        if (++parts_ > bounds_.parts) refuse(JsonFault::Kind::TooManyParts);
    }

    /// Bounds are told without line and column: where they are left says nothing about the text.
    [[noreturn]] void refuse(JsonFault::Kind kind, std::string detail = {}) const {
        throw faultOf(kind, std::move(detail));
    }

    JsonFault faultOf(JsonFault::Kind kind, std::string detail) const {
        JsonFault fault;
        fault.kind = kind;
        fault.pointer = pointer();
        fault.detail = std::move(detail);
        return fault;
    }

    JsonFault placed(JsonFault fault, std::size_t byte) const {
        const std::string_view before = text_.substr(0, byte);
        fault.byte = byte;
        fault.line += static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
        fault.column += before.size() - (before.rfind('\n') + 1);
        return fault;
    }

    /// The lists and objects that are open, each by its place in the one around it.
    std::string pointer() const {
        Json::json_pointer result;
        for (std::size_t i = 0; i + 1 < open_.size(); ++i)
            append(result, *open_[i], *open_[i + 1]);
        return result.to_string();
    }

    static void append(Json::json_pointer& pointer, const Json& parent, const Json& child) {
        if (parent.is_array()) return pointer.push_back(std::to_string(parent.size() - 1));
        for (const auto& [name, member] : parent.items()) {
            if (&member == &child) pointer.push_back(name);
        }
    }

    std::string_view text_;
    JsonBounds bounds_;
    RepeatedMembers repeated_;
    Json root_;
    std::vector<Json*> open_;
    std::string key_;
    std::size_t parts_ = 0;
};

}  // namespace

Json parseBounded(std::string_view text, const JsonBounds& bounds, RepeatedMembers repeated) {
    BoundedBuilder builder(text, bounds, repeated);
    Json::sax_parse(text, &builder);
    return builder.take();
}

}  // namespace Rotavue::HostKit
