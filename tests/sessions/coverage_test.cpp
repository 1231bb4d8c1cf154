#include "plugin/framework/message_codes.h"
#include "tests/sessions/session_files.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>
#include <set>

namespace Rotavue::HostKit {
namespace {

/// What the sessions reach, all calls shown.
struct Reached {
    std::set<std::uint32_t> codes;
    std::set<std::string> operations;
};

Reached reachedByAllSessions() {
    Reached reached;
    for (const auto& file : sessionFiles()) {
        std::istringstream log(logOf(file, allGroups()));
        for (std::string text; std::getline(log, text);) {
            const auto line = nlohmann::json::parse(text);
            if (line.contains("message"))
                reached.codes.insert(line["message"].get<std::uint32_t>());
            if (line.contains("call")) reached.operations.insert(line["call"].get<std::string>());
        }
    }
    return reached;
}

/// Operations that no message makes the plug-in call, each with the reason.
const std::map<std::string, std::string> NeverCalled{
    {"IHostApp.GetXmlFactory", "only a node that makes a document of its own asks for it"},
    {"IHostXmlFactory.CreateDocument", "likewise"},
    {"IHostXmlDocument.GetRootNode", "likewise"},
    {"IHostXmlDocument.SetRootNode", "likewise"},
    {"IHostXmlDocument.CreateNode", "likewise"},
    {"IHostXmlNode.SetValue", "settings are keys of one node, never nodes of their own"},
    {"IHostXmlNode.AppendChild", "likewise"},
    {"IHostXmlNode.RemoveChild", "likewise"},
    {"IHostXmlNode.ClearChildren", "likewise"},
    {"IHostXmlNode.FindChild", "likewise"},
    {"IHostXmlNode.GetChild", "likewise"},
    {"IHostXmlNode.GetChildCount", "likewise"},
    {"IHostXmlNode.Clone", "likewise"},
    {"IHostXmlNode.GetParent", "likewise"},
    {"IHostXmlNode.AppendAttribute", "likewise"},
    {"IHostXmlNode.RemoveAttribute", "likewise"},
    {"IHostXmlNode.FindAttribute", "likewise"},
    {"IHostXmlNode.GetAttribute", "likewise"},
    {"IHostXmlNode.GetAttributeCount", "likewise"},
    {"IHostXmlNode.ClearAttributes", "likewise"},
    {"IHostXmlNode.GetName", "likewise"},
    {"IHostXmlNode.GetValue", "likewise"},
};

TEST(Sessions, SendEveryCodeOfTheMessageTableAndOneBeyond) {
    const Reached reached = reachedByAllSessions();
    for (std::uint32_t code = 0; code <= Api::LastMessageCode + 1; ++code)
        EXPECT_TRUE(reached.codes.contains(code)) << "no session sends message " << code;
}

TEST(Sessions, MakeThePlugInCallEveryOperationThatItCalls) {
    const Reached reached = reachedByAllSessions();
    for (const OperationRow& row : OperationTable) {
        const std::string name(row.name);
        EXPECT_NE(reached.operations.contains(name), NeverCalled.contains(name))
            << name << (NeverCalled.contains(name) ? " is called after all" : " is never called");
    }
}

}  // namespace
}  // namespace Rotavue::HostKit
