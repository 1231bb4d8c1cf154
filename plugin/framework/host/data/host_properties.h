#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <string>

namespace Meridax::Host {

/// [host implements] Named text properties. It comes from `IHostChannel` or `IHostGroupInfo`.
class IHostProperties : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{DBB2D89C-443B-4ABF-838E-27CDEA6E424C}");

    /// The text of that property; empty when it is unset. [place 3]
    virtual std::wstring getValue(const std::wstring& name) = 0;

protected:
    ~IHostProperties() = default;
};

/// [host implements] A channel group as offered for assignment. The argument of message 24 offers
/// it.
class IHostGroupInfo : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{74E73F54-F623-4271-8071-D3E715B9EF70}");

    /// The properties of the group. [place 6 | never null in normal use]
    virtual Ref<IHostProperties> getProperties() = 0;

protected:
    ~IHostGroupInfo() = default;
};

}  // namespace Meridax::Host
