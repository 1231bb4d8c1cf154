#include "host_kit/windows/incoming.h"

namespace Rotavue::HostKit {

namespace {

/// The memory of an array for the length of a scope.
class Access {
public:
    explicit Access(SAFEARRAY* array) : array_(array) {
        const HRESULT status = ::SafeArrayAccessData(array_, &data_);
        if (FAILED(status)) throw Host::HostError(static_cast<std::uint32_t>(status));
    }
    Access(const Access&) = delete;
    Access& operator=(const Access&) = delete;
    ~Access() { ::SafeArrayUnaccessData(array_); }

    const LONG* data() const { return static_cast<const LONG*>(data_); }

private:
    SAFEARRAY* array_;
    void* data_ = nullptr;
};

bool isListOfIntegers(SAFEARRAY* array) {
    VARTYPE type = VT_EMPTY;
    LONG lowerBound = -1;
    return array != nullptr && ::SafeArrayGetDim(array) == 1 &&
           SUCCEEDED(::SafeArrayGetVartype(array, &type)) && type == VT_I4 &&
           SUCCEEDED(::SafeArrayGetLBound(array, 1, &lowerBound)) && lowerBound == 0;
}

}  // namespace

std::vector<std::int32_t> integersOf(SAFEARRAY* passed) {
    if (!isListOfIntegers(passed)) throw Host::HostError(Host::Status::InvalidArgument);
    const Access access(passed);
    return {access.data(), access.data() + passed->rgsabound[0].cElements};
}

}  // namespace Rotavue::HostKit
