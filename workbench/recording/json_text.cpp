#include "workbench/recording/json_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

using Json = nlohmann::json;

constexpr int NumberBeyondBounds = 406;  // the parser's own code of that fault

// Builds the value from the parser's events. The parser's own builder, asked to check each value,
// would walk through a whole list again behind each object in it.
class JsonBuilder final : public nlohmann::json_sax<Json> {
public:
    JsonBuilder(const std::filesystem::path& file, std::string_view text, const JsonBounds& bounds)
        : file_(file), text_(text), bounds_(bounds) {}

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
        key_ = std::move(name);
        return true;
    }

    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) override {
        if (error.id == NumberBeyondBounds) refuse("a number beyond all bounds", "a JSON object");
        const std::size_t byte = position > 0 ? position - 1 : 0;
        const std::string found =
            byte < text_.size() ? inQuotes(text_.substr(byte, 1)) : "the end of the file";
        throw RecordingError(placeOf(byte), found, "a JSON object");
    }

private:
    bool put(Json value) {
        place(std::move(value));
        return true;
    }

    bool open(Json container) {
        countPart();
        if (open_.size() == bounds_.depth)
            refuse("values nested too deep", std::to_string(bounds_.depth) + " levels");
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
        if (++parts_ > bounds_.parts)
            refuse("too many lists, objects and texts", "at most " + std::to_string(bounds_.parts));
    }

    [[noreturn]] void refuse(std::string_view found, std::string_view allowed) const {
        throw RecordingError({file_}, found, allowed);
    }

    FilePlace placeOf(std::size_t byte) const {
        const std::string_view before = text_.substr(0, byte);
        const auto lines = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
        const std::size_t lineStart = lines > 0 ? before.rfind('\n') + 1 : 0;
        return {file_, lines + 1, before.size() - lineStart + 1};
    }

    const std::filesystem::path& file_;
    std::string_view text_;
    JsonBounds bounds_;
    Json root_;
    std::vector<Json*> open_;
    std::string key_;
    std::size_t parts_ = 0;
};

}  // namespace

Json parseJson(const std::filesystem::path& file, std::string_view text, const JsonBounds& bounds) {
    JsonBuilder builder(file, text, bounds);
    Json::sax_parse(text, &builder);
    return builder.take();
}

}  // namespace Rotavue::Workbench
