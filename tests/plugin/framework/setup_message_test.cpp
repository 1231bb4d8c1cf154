#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/framework/doubles/bridge_fixture.h"

#include <gtest/gtest.h>

#include <vector>

/// Message 33: which way a setup goes, and when nothing happens.
namespace Meridax::VisualControls::Api {
namespace {

using Calls = std::vector<std::string>;

class SetupMessage : public BridgeFixture {
protected:
    std::int32_t sendSetup(std::int64_t writeFlag) {
        return send(MessageCode::Setup,
                    {object(host.document()), object(host.node()), number(writeFlag)});
    }
};

TEST_F(SetupMessage, SavesWithOneWordAndLoadsWithEveryOther) {
    EXPECT_EQ(sendSetup(0xFFFF), 0);
    EXPECT_EQ(record.calls, Calls{"persistSetup writing"});
    for (const std::int64_t word : {0, 1, 0x7FFF, 0xFFFE, 0x8000, 0x10001}) {
        record.calls.clear();
        EXPECT_EQ(sendSetup(word), 0);
        EXPECT_EQ(record.calls, Calls{"persistSetup reading"}) << word;
    }
    EXPECT_EQ(result.text, "none");
}

TEST_F(SetupMessage, SetsTheDirectionOfTheDocumentBeforeTheControlIsCalled) {
    host.record();
    record.during = [this] { EXPECT_EQ(host.calls().front(), "IHostXmlDocument.SetMode(true)"); };
    sendSetup(0xFFFF);
    EXPECT_EQ(record.calls.size(), 1U);
}

TEST_F(SetupMessage, DoesNothingWithoutDocumentOrNode) {
    host.record();
    for (const auto& [document, node] : {std::pair{object(host.document()), nullObject()},
                                         std::pair{nullObject(), object(host.node())},
                                         std::pair{object(host.node()), object(host.document())}})
        EXPECT_EQ(send(MessageCode::Setup, {document, node, number(0xFFFF)}), 0);
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_EQ(host.calls(), Calls{});
}

TEST_F(SetupMessage, WantsItsWriteFlagEvenWhereItDoesNothing) {
    const ListArguments arguments{nullObject(), nullObject()};
    EXPECT_EQ(thrownBy(MessageCode::Setup, &arguments), 0x80070057U);
}

TEST_F(SetupMessage, LetsGoOfTheSetupWhenTheControlFails) {
    record.during = [] {
        throw Utils::Serialization::XmlException(Utils::Serialization::XmlError::WrongType);
    };
    EXPECT_THROW(sendSetup(0), Utils::Serialization::XmlException);
    EXPECT_EQ(host.references(), 0);
}

TEST_F(SetupMessage, FailsBeforeTheControlIsCalledWhereTheDirectionCannotBeSet) {
    host.fail(::Rotavue::HostKit::operation("IHostXmlDocument.SetMode"));
    EXPECT_THROW(sendSetup(0xFFFF), Host::HostError);
    EXPECT_EQ(record.calls, Calls{});
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
