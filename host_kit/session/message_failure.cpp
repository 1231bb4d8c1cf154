#include "host_kit/session/message_failure.h"

#include "host_kit/memory/call.h"
#include "host_kit/memory/utf8.h"
#include "plugin/framework/guid_text.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/setup_document/xml_exception.h"

#include <stdexcept>
#include <string>

namespace Rotavue::HostKit {

namespace {

using Meridax::Utils::Serialization::XmlException;

CallValue interfaceText(const Host::Guid& identifier) {
    if (identifier == Host::Guid{}) return {};
    const auto name = interfaceName(identifier);
    return {name ? std::string(*name) : toUtf8(Api::guidText(identifier))};
}

/// Starts the members of a failure. They are added one by one: this compiler loses the way out of a
/// braced list of them when memory runs out in between.
LogMembers ofKind(const char* kind) {
    LogMembers members;
    members.emplace_back("kind", CallValue{kind});
    return members;
}

LogMembers failure(const char* kind, const char* what) {
    LogMembers members = ofKind(kind);
    members.emplace_back("what", CallValue{wellFormed(what)});
    return members;
}

LogMembers failure(const Host::HostError& error) {
    LogMembers members = ofKind("HostError");
    members.emplace_back("status", CallValue{statusText(error.status)});
    members.emplace_back("interface", interfaceText(error.interfaceId));
    return members;
}

LogMembers failure(const XmlException& error) {
    LogMembers members = ofKind("XmlException");
    members.emplace_back("code", toCallValue(error.code));
    members.emplace_back("what", CallValue{wellFormed(error.what())});
    return members;
}

}  // namespace

LogMembers currentFailure() {
    try {
        throw;
    } catch (const Host::HostError& error) {
        return failure(error);
    } catch (const XmlException& error) {
        return failure(error);
    } catch (const std::invalid_argument& error) {
        return failure("invalid_argument", error.what());
    } catch (const std::out_of_range& error) {
        return failure("out_of_range", error.what());
    } catch (const std::exception& error) {
        return failure("exception", error.what());
    } catch (...) {
        return failure("exception", "");
    }
}

}  // namespace Rotavue::HostKit
