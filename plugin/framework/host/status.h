#pragma once

#include <cstdint>

/// The platform's 32-bit status values that this system raises or answers. A status whose highest
/// bit is set means failure; every other one is success.
namespace Meridax::Host::Status {

inline constexpr std::uint32_t Ok = 0x00000000;
inline constexpr std::uint32_t No = 0x00000001;
inline constexpr std::uint32_t NoInterface = 0x80004002;
inline constexpr std::uint32_t InvalidPointer = 0x80004003;
inline constexpr std::uint32_t Abort = 0x80004004;
inline constexpr std::uint32_t Unspecified = 0x80004005;
inline constexpr std::uint32_t NoAggregation = 0x80040110;
inline constexpr std::uint32_t ClassNotAvailable = 0x80040111;
inline constexpr std::uint32_t OutOfMemory = 0x8007000E;
inline constexpr std::uint32_t InvalidArgument = 0x80070057;

constexpr bool isFailure(std::uint32_t status) {
    return (status & 0x80000000U) != 0;
}

/// The status as the operations and entry points of the plug-in return it.
constexpr std::int32_t asResult(std::uint32_t status) {
    return static_cast<std::int32_t>(status);
}

}  // namespace Meridax::Host::Status
