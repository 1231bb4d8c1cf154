#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>

namespace Meridax::Utils::Serialization {

/// The codes of `XmlException`. `NodeMissing`, `ValueTooWide` and the codes from `DocumentArgument`
/// to `ParseFailed` are part of the vocabulary, but no operation of this tree raises them.
namespace XmlError {

inline constexpr std::int32_t WrongType = 0;
inline constexpr std::int32_t NodeMissing = 1;
inline constexpr std::int32_t IndexTooLarge = 2;
inline constexpr std::int32_t ValueTooWide = 3;
inline constexpr std::int32_t OutOfRange = 4;
inline constexpr std::int32_t NoInnerNode = 5;
inline constexpr std::int32_t NoDocument = 6;
inline constexpr std::int32_t NodeArgument = 7;
inline constexpr std::int32_t DocumentArgument = 8;
inline constexpr std::int32_t NoFileName = 9;
inline constexpr std::int32_t OpenFailed = 10;
inline constexpr std::int32_t ReadFailed = 11;
inline constexpr std::int32_t ParseFailed = 12;
inline constexpr std::int32_t DummyArgument = 13;

}  // namespace XmlError

/// The one exception that the setup layer raises itself. The texts are part of the contract: they
/// may reach the user through whatever catches the exception. `code` is a plain member, so that a
/// host reads it without calling into the module that threw.
class XmlException : public std::exception {
public:
    explicit XmlException(std::int32_t errorCode) noexcept : code(errorCode) {}

    const char* what() const noexcept override {
        const auto index = static_cast<std::size_t>(static_cast<std::uint32_t>(code));
        return index < Texts.size() ? Texts[index] : "XmlExceptionCode is not set!";
    }

    std::int32_t code;  ///< one of `XmlError`

private:
    static constexpr std::array<const char*, 14> Texts{
        "Node does not contain expected type!",
        "Node you want to read does not exist!",
        "DCOM index size is limited to values of long type!",
        "Values you can write to DCOM node are limited to values of long type!",
        "Value is out of range!",
        "Inner node is not initialized!",
        "DCOM document is not set!",
        "Node in function argument is nullptr!",
        "Document in function argument is nullptr!",
        "File name is not set!",
        "Failure when opening a file!",
        "Failure when reading a buffer from a file!",
        "Failure when parsing Xml file!",
        "Parameter is a dummy node!",
    };
};

}  // namespace Meridax::Utils::Serialization
