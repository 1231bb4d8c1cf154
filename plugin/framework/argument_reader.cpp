#include "plugin/framework/argument_reader.h"

#include "plugin/framework/host/host_text.h"

namespace Meridax::VisualControls::Api {

ArgumentReader::ArgumentReader(const MessageArguments* arguments) {
    if (arguments == nullptr) throw Host::HostError(Host::Status::InvalidArgument);
    copy_ = arguments->copy();
}

const ArgumentList& ArgumentReader::listWith(std::int32_t position) const {
    if (copy_ == nullptr) throw Host::HostError(Host::Status::Unspecified);
    if (position < copy_->lowerBound() || position > copy_->upperBound())
        throw Host::HostError(Host::Status::InvalidArgument);
    return *copy_;
}

Host::Ref<Host::IHostObject> ArgumentReader::anyObject(std::int32_t position) const {
    return listWith(position).objectAt(position);
}

std::wstring ArgumentReader::text(std::int32_t position) const {
    const ArgumentList& list = listWith(position);
    return Host::madeText([&] { return list.textAt(position); });
}

std::int32_t ArgumentReader::integer(std::int32_t position) const {
    return listWith(position).integerAt(position);
}

std::uint16_t ArgumentReader::word(std::int32_t position) const {
    return listWith(position).wordAt(position);
}

std::uint8_t ArgumentReader::byte(std::int32_t position) const {
    return listWith(position).byteAt(position);
}

ShiftState ArgumentReader::shiftState(std::int32_t position) const {
    return ShiftState::fromWord(word(position));
}

}  // namespace Meridax::VisualControls::Api
