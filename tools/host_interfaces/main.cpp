#include "tools/host_interfaces/page.h"

#include <fstream>
#include <iostream>

/// host_interfaces_page FILE: writes the page into the file.
int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: host_interfaces_page FILE\n";
        return 2;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    file << Rotavue::Tools::hostInterfacesPage();
    return file.flush() ? 0 : 1;
}
