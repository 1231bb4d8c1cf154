#include "host_kit/session/json_document.h"

#include "host_kit/session/session_error.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Rotavue::HostKit {

namespace {

/// Builds the document from the parser's events and refuses what the parser itself would take.
class DocumentBuilder final : public nlohmann::json_sax<Json> {
public:
    explicit DocumentBuilder(std::string_view text) : text_(text) {}

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
        if (open_.back()->contains(name))
            refuse("the member " + inQuotes(name) + " is there twice");
        key_ = std::move(name);
        return true;
    }

    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) override {
        const std::string_view before = text_.substr(0, position == 0 ? 0 : position - 1);
        const auto line = std::count(before.begin(), before.end(), '\n') + 1;
        const auto column = before.size() - (before.rfind('\n') + 1) + 1;
        refuse("is no JSON at line " + std::to_string(line) + ", column " + std::to_string(column) +
               reasonIn(error.what()));
    }

private:
    /// The parser's own words behind its headings: "...: syntax error while parsing value - ...".
    static std::string reasonIn(std::string_view words) {
        const std::size_t start = words.find(" - ");
        const std::size_t end = words.find("; last read");
        if (start == std::string_view::npos) return ": a number beyond all bounds";
        return ": " + std::string(words.substr(start + 3, end - std::min(end, start + 3)));
    }

    bool put(Json value) {
        place(std::move(value));
        return true;
    }

    bool open(Json container) {
        countPart();
        if (open_.size() == JsonLimits::Depth) refuse("lists and objects lie too deep");
        open_.push_back(place(std::move(container)));
        return true;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    Json* place(Json value) {
        if (open_.empty()) {
            root_ = std::move(value);
            return &root_;
        }
        Json& parent = *open_.back();
        if (parent.is_object()) return &(parent[key_] = std::move(value));
        parent.push_back(std::move(value));
        return &parent.back();
    }

    void countPart() {
        if (++parts_ > JsonLimits::Parts) refuse("there are too many texts, lists and objects");
    }

    [[noreturn]] void refuse(const std::string& wrong) const {
        throw SessionError(pointer(), wrong);
    }

    /// Where the parser is: the containers that are open, each by its place in the one around it.
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
    Json root_;
    std::vector<Json*> open_;
    std::string key_;
    std::size_t parts_ = 0;
};

}  // namespace

Json parseJson(std::string_view text) {
    if (text.size() > JsonLimits::Bytes) throw SessionError("", "the file is longer than 64 MiB");
    DocumentBuilder builder(text);
    Json::sax_parse(text, &builder);
    return builder.take();
}

}  // namespace Rotavue::HostKit
