#include "host_kit/memory/memory_app.h"

#include "host_kit/memory/host_objects.h"

namespace Rotavue::HostKit {

using Host::Ref;

Ref<Host::IHostData> MemoryApp::getData() {
    return call(operation("IHostApp.getData"),
                [&] { return Ref<Host::IHostData>::share(&host_.objects().data); });
}

void MemoryApp::showMessage(const std::wstring& text) {
    call(
        operation("IHostApp.showMessage"),
        [&] {
            if (HostListener* listener = host_.listener()) listener->messageShown(text);
        },
        text);
}

bool MemoryApp::isAcquiring() {
    return call(operation("IHostApp.isAcquiring"),
                [&] { return host_.description.host.acquiring; });
}

Host::HostVersion MemoryApp::getVersion() {
    return call(operation("IHostApp.getVersion"), [&] { return host_.description.host.version; });
}

Ref<Host::IHostChannelList> MemoryApp::createChannelList() {
    return call(operation("IHostApp.createChannelList"), [&] {
        const auto list = std::make_shared<MemoryChannelList>(host_);
        return Ref<Host::IHostChannelList>::share(list.get());
    });
}

Ref<Host::IHostXmlFactory> MemoryApp::GetXmlFactory() {
    return call(operation("IHostApp.GetXmlFactory"),
                [&] { return Ref<Host::IHostXmlFactory>::share(&host_.objects().xmlFactory); });
}

std::int32_t MemoryData::getBlockSize() {
    return call(operation("IHostData.getBlockSize"), [&] { return facts().blockSize; });
}

Host::DataPosition MemoryData::getCurrentPosition() {
    return call(operation("IHostData.getCurrentPosition"), [&] { return facts().currentPosition; });
}

std::int32_t MemoryData::getAcquiredSampleCount() {
    return call(operation("IHostData.getAcquiredSampleCount"),
                [&] { return facts().acquiredSampleCount; });
}

Host::DataPosition MemoryData::getFirstPosition() {
    return call(operation("IHostData.getFirstPosition"), [&] { return facts().firstPosition; });
}

Host::DataPosition MemoryData::getLastPosition() {
    return call(operation("IHostData.getLastPosition"), [&] { return facts().lastPosition; });
}

bool MemoryData::isWholeDataset() {
    return call(operation("IHostData.isWholeDataset"), [&] { return facts().wholeDataset; });
}

double MemoryData::getSampleRate() {
    return call(operation("IHostData.getSampleRate"), [&] { return facts().sampleRate; });
}

}  // namespace Rotavue::HostKit
