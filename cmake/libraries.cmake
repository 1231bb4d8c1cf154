# The libraries of others that are found the same way wherever they are needed. A build for another
# platform cannot take them from this machine's folders: of the headers that fit any platform it sees
# a folder with nothing else in it, and the test framework is built from its sources.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(CLI11 REQUIRED)
    find_package(nlohmann_json REQUIRED)
    return()
endif()

# rotavue_header_library(TARGET NAME): the headers below /usr/include/NAME and no others.
function(rotavue_header_library target name)
    set(folder ${PROJECT_BINARY_DIR}/libraries/${name})
    file(MAKE_DIRECTORY ${folder})
    file(CREATE_LINK /usr/include/${name} ${folder}/${name} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} INTERFACE ${folder})
endfunction()

rotavue_header_library(CLI11::CLI11 CLI)
rotavue_header_library(nlohmann_json::nlohmann_json nlohmann)
