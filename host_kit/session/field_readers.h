#pragma once

#include "host_kit/memory/description.h"
#include "host_kit/session/field.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// How each kind of member of a description is read. An object is merged into what is there, a list
/// takes its place.
namespace Rotavue::HostKit {

void readInto(const Field& field, bool& value);
void readInto(const Field& field, std::int32_t& value);
void readInto(const Field& field, std::uint32_t& color);
void readInto(const Field& field, double& value);
void readInto(const Field& field, std::wstring& value);
void readInto(const Field& field, std::optional<std::int32_t>& value);
void readInto(const Field& field, TimeStamps& stamps);
void readInto(const Field& field, Host::HostVersion& version);
void readInto(const Field& field, Host::DataPosition& position);
void readInto(const Field& field, EditAnswer& answer);
void readInto(const Field& field, Scale& scale);
void readInto(const Field& field, std::optional<std::vector<AxisDescription>>& axes);
void readInto(const Field& field, std::map<std::wstring, std::wstring>& texts);
void readInto(const Field& field, ComponentValues& values);
void readInto(const Field& field, HostFacts& facts);
void readInto(const Field& field, ChannelDescription& channel);
void readInto(const Field& field, CanvasMetrics& metrics);

}  // namespace Rotavue::HostKit
