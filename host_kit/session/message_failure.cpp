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

LogMembers failure(const char* kind, const char* what) {
    return {{"kind", {kind}}, {"what", {wellFormed(what)}}};
}

}  // namespace

LogMembers currentFailure() {
    try {
        throw;
    } catch (const Host::HostError& error) {
        return {{"kind", {"HostError"}},
                {"status", {statusText(error.status)}},
                {"interface", interfaceText(error.interfaceId)}};
    } catch (const XmlException& error) {
        return {{"kind", {"XmlException"}},
                {"code", toCallValue(error.code)},
                {"what", {wellFormed(error.what())}}};
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
