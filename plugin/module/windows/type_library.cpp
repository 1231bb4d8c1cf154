#include "plugin/module/windows/type_library.h"

// The platform has these two, but not every edition of its headers tells so.
WINOLEAUTAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
WINOLEAUTAPI UnRegisterTypeLibForUser(REFGUID library, WORD major, WORD minor, LCID language,
                                      SYSKIND system);

namespace Meridax::VisualControls::Rotavue {

using Host::Binary::ComRef;

std::int32_t TypeLibrary::registerLibrary(bool perUser) {
    ComRef<ITypeLib> library;
    const HRESULT loaded = load(library);
    if (FAILED(loaded)) return loaded;
    std::wstring path = path_;
    const auto announce = perUser ? ::RegisterTypeLibForUser : ::RegisterTypeLib;
    return announce(library.get(), path.data(), nullptr);
}

std::int32_t TypeLibrary::unregisterLibrary(bool perUser) {
    ComRef<ITypeLib> library;
    TLIBATTR* attributes = nullptr;
    HRESULT status = load(library);
    if (SUCCEEDED(status)) status = library->GetLibAttr(&attributes);
    if (FAILED(status)) return status;
    const auto withdraw = perUser ? ::UnRegisterTypeLibForUser : ::UnRegisterTypeLib;
    status = withdraw(attributes->guid, attributes->wMajorVerNum, attributes->wMinorVerNum,
                      attributes->lcid, attributes->syskind);
    library->ReleaseTLibAttr(attributes);
    return status;
}

HRESULT TypeLibrary::loadType(const GUID& interfaceId, ITypeInfo** type) const {
    ComRef<ITypeLib> library;
    const HRESULT loaded = load(library);
    return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(interfaceId, type);
}

HRESULT TypeLibrary::load(ComRef<ITypeLib>& library) const {
    return ::LoadTypeLibEx(path_.c_str(), REGKIND_NONE, library.put());
}

}  // namespace Meridax::VisualControls::Rotavue
