#include "workbench/bench/plane_titles.h"

#include "workbench/recording/recording_error.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace Rotavue::Workbench {

namespace {

using Texts = std::vector<std::string>;
using Files = std::vector<std::filesystem::path>;
using Group = std::vector<std::size_t>;

/// Places of titles that are the same.
std::vector<Group> groupsOf(const std::vector<PlaneTitle>& titles) {
    std::map<std::string, Group> byText;
    for (std::size_t i = 0; i < titles.size(); ++i)
        byText[titles[i].text()].push_back(i);
    std::vector<Group> groups;
    for (auto& [text, group] : byText)
        if (group.size() > 1) groups.push_back(std::move(group));
    return groups;
}

bool areAlike(const Texts& texts) {
    return std::equal(std::next(texts.begin()), texts.end(), texts.begin());
}

/// The last parts of a path.
std::string endOf(const std::filesystem::path& file, std::size_t parts) {
    std::filesystem::path end;
    for (auto part = file.end(); part != file.begin() && parts > 0; --parts)
        end = *--part / end;
    std::string text = end.generic_string();
    if (text.ends_with('/')) text.pop_back();
    return text;
}

/// As many last parts of each path as tell all different ones apart.
Texts endsOf(const Files& files) {
    const std::size_t different = std::set(files.begin(), files.end()).size();
    std::size_t most = 1;
    for (const auto& file : files)
        most = std::max(most, static_cast<std::size_t>(std::distance(file.begin(), file.end())));
    for (std::size_t parts = 1;; ++parts) {
        Texts ends;
        for (const auto& file : files)
            ends.push_back(endOf(file, parts));
        const bool tell = std::set(ends.begin(), ends.end()).size() == different;
        if (tell || parts == most) return ends;
    }
}

/// Names in a file may be of any length.
std::string shortened(const std::string& name) {
    const std::string quoted = inQuotes(name);
    return quoted.substr(1, quoted.size() - 2);
}

std::string columnsOf(const PlaneSource& plane) {
    std::string x;
    std::string y;
    for (const RecordingColumn& column : plane.recording.columns) {
        if (column.role == ColumnRole::X) x = shortened(column.name);
        if (column.role == ColumnRole::Y) y = shortened(column.name);
    }
    return "columns " + x + " and " + y;
}

void addDetail(PlaneTitle& title, const std::string& detail) {
    title.detail += (title.detail.empty() ? "" : ", ") + detail;
}

void setMachine(PlaneTitle& title, const std::string& machine) {
    title.machine = machine;
}

class TitleMaker {
public:
    explicit TitleMaker(const std::vector<const PlaneSource*>& planes) : planes_(planes) {
        for (const PlaneSource* plane : planes)
            titles_.push_back({plane->name()});
    }

    std::vector<PlaneTitle> make() {
        const auto each = [this](auto textOf) {
            return [this, textOf](const Group& group) {
                Texts texts;
                for (const std::size_t place : group)
                    texts.push_back(textOf(*planes_[place]));
                return texts;
            };
        };
        tellApart(each([](const auto& plane) { return plane.recording.machine.machine; }),
                  setMachine);
        tellApart([this](const Group& group) { return endsOf(filesOf(group)); }, addDetail);
        tellApart(each(columnsOf), addDetail);
        // A plane may be called as another one is with its number.
        for (std::size_t round = 0; round < titles_.size(); ++round)
            tellApart(numbersOf, addDetail);
        return std::move(titles_);
    }

private:
    void tellApart(const std::function<Texts(const Group&)>& textsOf,
                   const std::function<void(PlaneTitle&, const std::string&)>& add) {
        for (const Group& group : groupsOf(titles_)) {
            const Texts texts = textsOf(group);
            if (areAlike(texts)) continue;
            for (std::size_t i = 0; i < group.size(); ++i)
                add(titles_[group[i]], texts[i]);
        }
    }

    Files filesOf(const Group& group) const {
        Files files;
        for (const std::size_t place : group)
            files.push_back(planes_[place]->recording.file);
        return files;
    }

    static Texts numbersOf(const Group& group) {
        Texts numbers;
        for (std::size_t i = 0; i < group.size(); ++i)
            numbers.push_back(std::to_string(i + 1));
        return numbers;
    }

    const std::vector<const PlaneSource*>& planes_;
    std::vector<PlaneTitle> titles_;
};

}  // namespace

std::string PlaneTitle::text() const {
    if (machine.empty() && detail.empty()) return name;
    const char* between = machine.empty() || detail.empty() ? "" : ", ";
    return name + " (" + machine + between + detail + ')';
}

std::vector<PlaneTitle> planeTitles(const std::vector<const PlaneSource*>& planes) {
    return TitleMaker(planes).make();
}

std::vector<std::string> fileTitles(const Files& files) {
    Files each;
    for (const auto& file : files)
        if (std::find(each.begin(), each.end(), file) == each.end()) each.push_back(file);
    Texts titles;
    for (const auto& file : each) {
        Files alike;
        std::copy_if(each.begin(), each.end(), std::back_inserter(alike),
                     [&](const auto& other) { return other.filename() == file.filename(); });
        const auto place = std::find(alike.begin(), alike.end(), file) - alike.begin();
        titles.push_back(endsOf(alike)[static_cast<std::size_t>(place)]);
    }
    return titles;
}

}  // namespace Rotavue::Workbench
