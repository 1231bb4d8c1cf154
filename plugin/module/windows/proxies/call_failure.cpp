#include "plugin/module/windows/proxies/call_failure.h"

#include "plugin/framework/host/host_error.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/host_string.h"
#include "plugin/module/windows/interfaces/platform_guid.h"

#include <memory>
#include <new>

namespace Meridax::Host::Binary {

namespace {

bool tellsOfFailures(IUnknown* object, const Guid& calledInterface) {
    const auto support = queried<ISupportErrorInfo>(object, IID_ISupportErrorInfo);
    return support && support->InterfaceSupportsErrorInfo(platformGuid(calledInterface)) == S_OK;
}

using TellText = HRESULT (STDMETHODCALLTYPE IErrorInfo::*)(BSTR*);

std::wstring told(const ComRef<IErrorInfo>& info, TellText operation) {
    HostString text;
    (info.get()->*operation)(text.put());
    return text.copy();
}

/// The details of this thread; null where there are none, or no memory for them.
std::shared_ptr<const ErrorDetails> toldDetails(IUnknown* object, const Guid& calledInterface) {
    if (!tellsOfFailures(object, calledInterface)) return nullptr;
    ComRef<IErrorInfo> info;
    ::GetErrorInfo(0, info.put());
    if (!info) return nullptr;
    try {
        return std::make_shared<ErrorDetails>(ErrorDetails{
            told(info, &IErrorInfo::GetSource), told(info, &IErrorInfo::GetDescription)});
    } catch (const std::exception&) {
        return nullptr;  // The failure that was met matters more.
    }
}

}  // namespace

void raiseIfCallFailed(HRESULT result, IUnknown* object, const Guid& calledInterface) {
    const auto status = static_cast<std::uint32_t>(result);
    if (!Status::isFailure(status)) return;
    raiseIfFailed(status, calledInterface, toldDetails(object, calledInterface));
}

}  // namespace Meridax::Host::Binary
