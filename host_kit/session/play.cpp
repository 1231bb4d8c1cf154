#include "host_kit/session/play.h"

#include "host_kit/session/classic_locale.h"
#include "host_kit/session/session_error.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace Rotavue::HostKit {

namespace {

namespace fs = std::filesystem;

/// Why a session was not played to its end.
struct PlayError {
    PlayStatus status;
    std::string line;
};

/// Reads up to one byte more than a session may have, so that the parser sees a longer file.
std::string readFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::string text;
    std::array<char, 65536> part;
    while (in && text.size() <= JsonLimits::Bytes) {
        in.read(part.data(), part.size());
        text.append(part.data(), static_cast<std::size_t>(in.gcount()));
    }
    if (!in.is_open() || in.bad()) {
        throw PlayError{PlayStatus::NoSession, file.string() + ": cannot be read"};
    }
    return text;
}

std::unique_ptr<Session> readSession(const fs::path& file) {
    try {
        return std::make_unique<Session>(readFile(file));
    } catch (const SessionError& error) {
        throw PlayError{PlayStatus::NoSession, file.string() + ": " + error.what()};
    }
}

std::shared_ptr<Module> loadModule(const PlayOptions& options) {
    return std::make_shared<Module>(chooseModule(options.module));
}

void play(const Session& session, std::shared_ptr<Module> module, const PlayOptions& options,
          std::ostream& out, const std::string& outName) {
    Player(session, std::move(module), out, options.log).play();
    if (!out.flush()) throw PlayError{PlayStatus::NoOutput, outName + ": cannot be written"};
}

/// Runs `work`, and tells on `errors` what keeps it from its end.
template <class Work>
PlayStatus reported(std::ostream& errors, Work work) {
    try {
        work();
        return PlayStatus::Done;
    } catch (const PlayError& error) {
        errors << error.line << '\n';
        return error.status;
    } catch (const LoadError& error) {
        errors << error.what() << '\n';
        return PlayStatus::NoModule;
    } catch (const fs::filesystem_error& error) {
        errors << error.what() << '\n';
        return PlayStatus::NoOutput;
    }
}

/// A link that leads nowhere, or round in a circle, is none.
bool isSession(const fs::directory_entry& entry) {
    std::error_code unreachable;
    return entry.is_regular_file(unreachable) && entry.path().extension() == ".json";
}

std::vector<fs::path> sessionsBelow(const fs::path& folder) {
    std::error_code failure;
    std::vector<fs::path> files;
    for (fs::recursive_directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        if (isSession(*entry)) files.push_back(entry->path());
    }
    if (failure) throw PlayError{PlayStatus::NoSession, folder.string() + ": cannot be read"};
    std::sort(files.begin(), files.end());
    return files;
}

void playBeside(const fs::path& file, const fs::path& log, std::shared_ptr<Module> module,
                const PlayOptions& options) {
    const auto session = readSession(file);
    fs::create_directories(log.parent_path());
    std::ofstream out(log, std::ios::binary);
    play(*session, std::move(module), options, out, log.string());
}

}  // namespace

std::optional<CallGroups> parseCallGroups(std::string_view text) {
    CallGroups groups;
    while (!text.empty()) {
        const std::string_view name = text.substr(0, text.find(','));
        text.remove_prefix(std::min(text.size(), name.size() + 1));
        const auto found = std::find(CallGroupNames.begin(), CallGroupNames.end(), name);
        if (found == CallGroupNames.end() && name != "all") return std::nullopt;
        name == "all" ? groups.set()
                      : groups.set(static_cast<std::size_t>(found - CallGroupNames.begin()));
    }
    return groups;
}

PlayStatus playSession(const fs::path& file, const PlayOptions& options, std::ostream& out,
                       std::ostream& errors) {
    const ClassicLocale classic;
    return reported(errors, [&] {
        const auto session = readSession(file);
        play(*session, loadModule(options), options, out, "the log");
    });
}

PlayStatus playFolder(const fs::path& folder, const fs::path& outFolder, const PlayOptions& options,
                      std::ostream& errors) {
    const ClassicLocale classic;
    PlayStatus worst = PlayStatus::Done;
    const PlayStatus started = reported(errors, [&] {
        const std::vector<fs::path> files = sessionsBelow(folder);
        const std::shared_ptr<Module> module = loadModule(options);
        for (const fs::path& file : files) {
            const fs::path log =
                (outFolder / file.lexically_relative(folder)).replace_extension("log");
            const auto one = [&] { playBeside(file, log, module, options); };
            worst = std::max(worst, reported(errors, one));
        }
    });
    return std::max(worst, started);
}

}  // namespace Rotavue::HostKit
