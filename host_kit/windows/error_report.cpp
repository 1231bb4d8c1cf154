#include "host_kit/windows/error_report.h"

#include "plugin/module/windows/interfaces/com_ref.h"

namespace Rotavue::HostKit {

namespace {

using Host::Binary::ComRef;

ComRef<IErrorInfo> infoFrom(const Host::ErrorDetails& details) {
    ComRef<ICreateErrorInfo> maker;
    if (FAILED(::CreateErrorInfo(maker.put()))) return {};
    std::wstring text = details.source;  // the setters take what they don't change as changeable
    maker->SetSource(text.data());
    text = details.description;
    maker->SetDescription(text.data());
    return Host::Binary::queried<IErrorInfo>(maker.get(), IID_IErrorInfo);
}

}  // namespace

void leaveDetails(const Host::ErrorDetails* details) noexcept try {
    const ComRef<IErrorInfo> info = details != nullptr ? infoFrom(*details) : ComRef<IErrorInfo>();
    ::SetErrorInfo(0, info.get());
} catch (const std::bad_alloc&) {
    ::SetErrorInfo(0, nullptr);
}

}  // namespace Rotavue::HostKit
