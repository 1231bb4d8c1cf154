#include "plugin/setup_document/xml_exception.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::Utils::Serialization {
namespace {

TEST(XmlException, TellsItsCodeInWords) {
    struct Case {
        std::int32_t code;
        const char* text;
    };
    constexpr Case Cases[] = {
        {0, "Node does not contain expected type!"},
        {1, "Node you want to read does not exist!"},
        {2, "DCOM index size is limited to values of long type!"},
        {3, "Values you can write to DCOM node are limited to values of long type!"},
        {4, "Value is out of range!"},
        {5, "Inner node is not initialized!"},
        {6, "DCOM document is not set!"},
        {7, "Node in function argument is nullptr!"},
        {8, "Document in function argument is nullptr!"},
        {9, "File name is not set!"},
        {10, "Failure when opening a file!"},
        {11, "Failure when reading a buffer from a file!"},
        {12, "Failure when parsing Xml file!"},
        {13, "Parameter is a dummy node!"},
    };
    for (const Case& c : Cases) {
        EXPECT_STREQ(XmlException(c.code).what(), c.text);
        EXPECT_EQ(XmlException(c.code).code, c.code);
    }
}

TEST(XmlException, SaysSoForAnyOtherCode) {
    for (const std::int32_t code : {14, 99, -1, std::numeric_limits<std::int32_t>::min()})
        EXPECT_STREQ(XmlException(code).what(), "XmlExceptionCode is not set!") << code;
}

TEST(XmlException, IsAStandardException) {
    const auto raise = [] { throw XmlException(XmlError::OutOfRange); };
    EXPECT_THROW(raise(), std::exception);
}

}  // namespace
}  // namespace Meridax::Utils::Serialization
