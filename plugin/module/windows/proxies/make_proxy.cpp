#include "plugin/module/windows/proxies/make_proxy.h"

#include "plugin/module/windows/proxies/data_proxies.h"
#include "plugin/module/windows/proxies/document_proxies.h"
#include "plugin/module/windows/proxies/drawing_proxies.h"
#include "plugin/module/windows/proxies/panel_proxies.h"

#include <algorithm>
#include <array>

namespace Meridax::Host::Binary {

/// Any object of the host, of which only its interfaces are asked.
template <>
class Proxy<IHostObject> final : public ProxyObject<IHostObject> {
public:
    using ProxyObject::ProxyObject;
};

namespace {

struct Maker {
    Guid interfaceId;
    void* (*make)(ComRef<IUnknown> object);
};

template <class Interface>
constexpr Maker MakerOf{Interface::Identifier, [](ComRef<IUnknown> object) -> void* {
                            return static_cast<Interface*>(new Proxy<Interface>(std::move(object)));
                        }};

template <class... Interfaces>
constexpr std::array<Maker, HostInterfaces::Count + 1> makersOf(InterfaceList<Interfaces...>) {
    return {MakerOf<IHostObject>, MakerOf<Interfaces>...};
}

constexpr auto Makers = makersOf(HostInterfaces{});

}  // namespace

void* makeProxy(const Guid& interfaceId, ComRef<IUnknown> object) {
    const auto maker = std::ranges::find(Makers, interfaceId, &Maker::interfaceId);
    if (!object || maker == Makers.end()) return nullptr;
    return maker->make(std::move(object));
}

}  // namespace Meridax::Host::Binary
