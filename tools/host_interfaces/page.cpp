#include "tools/host_interfaces/page.h"

#include "plugin/framework/guid_text.h"
#include "plugin/framework/unicode.h"
#include "plugin/module/windows/interfaces/virtual_table.h"

#include <sstream>
#include <vector>

namespace Rotavue::Tools {

namespace {

namespace Api = Meridax::VisualControls::Api;
using namespace Meridax::Host::Binary;

constexpr const char* Head =
    "# The host's interfaces in binary form\n"
    "\n"
    "Written by the program `host_interfaces_page` (tools/host_interfaces/) from the lists in\n"
    "`plugin/module/windows/interfaces/`, of which the virtual tables are made; a test compares. "
    "Change the lists, not\n"
    "this page. [binary-contract.md](binary-contract.md) tells what the types mean and who owns "
    "what.\n"
    "\n"
    "Slots are counted from 0: three of identity, four of dispatch, then the operation at place p "
    "in slot 6 + p. A slot\n"
    "that is missing here is reserved. Every operation gives an `HRESULT`.\n";

template <class Form>
std::string spelled() {
    std::string text(Form::Text);
    if constexpr (requires { Form::Stars; }) text += Form::Stars;
    return text;
}

template <class Argument>
std::string argumentText(Truth truth) {
    const std::string text = spelled<ArgumentForm<Argument>>();
    if constexpr (std::is_same_v<Argument, bool>)
        return text + (truth == Truth::AsMinusOne ? " (true is -1)" : " (true is 1)");
    return text;
}

template <class Result>
std::string resultText(Truth truth) {
    return truth == Truth::AsShort ? "SHORT*" : spelled<ResultForm<Result>>();
}

/// The two last columns of an operation.
template <class Result, class Class, class... Arguments>
std::string typeColumns(Result (Class::* /*operation*/)(Arguments...), Truth truth) {
    const std::vector<std::string> arguments{argumentText<Arguments>(truth)...};
    std::string columns;
    for (const std::string& argument : arguments)
        columns += (columns.empty() ? "" : ", ") + argument;
    const std::string result = resultText<Result>(truth);
    return columns + (columns.empty() ? "| " : " | ") + result + (result.empty() ? "|" : " |");
}

template <class Interface>
void writeInterface(std::ostream& page) {
    page << "\n## " << Table<Interface>::Text << "\n\n`"
         << Api::utf8FromWide(Api::guidText(Interface::Identifier)) << "`, "
         << VirtualTable<Interface>().size() << " slots\n\n"
         << "| place | slot | operation | arguments | result |\n|---|---|---|---|---|\n";
    forEachOperation<Interface>([&]<class Row>(std::type_identity<Row>) {
        page << "| " << Row::PlaceNumber << " | " << Row::Slot << " | `" << Row::Text << "` | "
             << typeColumns(Row::Call, Row::TruthCrosses) << "\n";
    });
}

}  // namespace

std::string hostInterfacesPage() {
    std::ostringstream page;
    page << Head;
    forEachInterface(
        [&]<class Interface>(std::type_identity<Interface>) { writeInterface<Interface>(page); });
    return page.str();
}

}  // namespace Rotavue::Tools
