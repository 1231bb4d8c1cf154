#include "plugin/setup_document/node.h"

#include "plugin/setup_document/string_helper.h"
#include "plugin/setup_document/xml_exception.h"

#include <stdexcept>

namespace Meridax::Utils::Serialization {
namespace {

namespace StringHelper = Dcom::Utils::StringHelper;

template <class T>
T converted(T (*convert)(const std::string&), const std::string& text) {
    try {
        return convert(text);
    } catch (const std::invalid_argument&) {
        throw XmlException(XmlError::WrongType);
    } catch (const std::out_of_range&) {
        throw XmlException(XmlError::OutOfRange);
    }
}

}  // namespace

Node::~Node() = default;

std::string Node::textOf(bool value) {
    return StringHelper::boolToText(value);
}

std::string Node::textOf(std::int32_t value) {
    return StringHelper::intToText(value);
}

std::string Node::textOf(double value) {
    return StringHelper::doubleToText(value);
}

void Node::takeText(const std::string& text, bool& value) {
    value = StringHelper::textToBool(text);
}

void Node::takeText(const std::string& text, std::int32_t& value) {
    value = converted(StringHelper::textToInt, text);
}

void Node::takeText(const std::string& text, double& value) {
    value = converted(StringHelper::textToDouble, text);
}

}  // namespace Meridax::Utils::Serialization
