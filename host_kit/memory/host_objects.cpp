#include "host_kit/memory/host_objects.h"

namespace Rotavue::HostKit {

namespace {

/// The one object of that key, made when it is asked for first.
template <class Object, class Pointer, class Key>
Object& theOne(std::map<Key, Pointer>& objects, MemoryHost& host, const Key& key) {
    Pointer& object = objects[key];
    if (!object) object = Pointer(std::make_unique<Object>(host, key));
    return *object;
}

}  // namespace

HostObjects::HostObjects(MemoryHost& host)
    : app(host),
      data(host),
      control(host),
      channels(host),
      groups(host),
      slots(host),
      canvas(host),
      panel(host),
      xmlFactory(host),
      node(std::make_shared<MemoryNode>(host, L"setup", L"")),
      document(std::make_shared<MemoryDocument>(host, false, node)),
      host_(host) {
    node->keepTextsIn(host.description.setup);
}

MemoryChannel& HostObjects::channel(const std::string& id) {
    return theOne<MemoryChannel>(channelById_, host_, id);
}

MemoryGroup& HostObjects::group(std::int32_t index) {
    return theOne<MemoryGroup>(groupByIndex_, host_, index);
}

MemorySlot& HostObjects::slot(std::int32_t index) {
    return theOne<MemorySlot>(slotByIndex_, host_, index);
}

MemoryBareWidget& HostObjects::bareWidget(const std::wstring& name) {
    return theOne<MemoryBareWidget>(bareWidgetByName_, host_, name);
}

}  // namespace Rotavue::HostKit
