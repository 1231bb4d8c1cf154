# Every header of the tree compiles alone. A source that begins with its own header proves that one;
# for each of the others one source is generated, built and thrown away.

file(
    GLOB_RECURSE headers
    RELATIVE ${PROJECT_SOURCE_DIR}
    CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/plugin/*.h ${PROJECT_SOURCE_DIR}/host_kit/*.h ${PROJECT_SOURCE_DIR}/workbench/*.h
        ${PROJECT_SOURCE_DIR}/cli/*.h
)

# Each platform compiles its own.
if(WIN32)
    list(FILTER headers EXCLUDE REGEX "/portable/")
else()
    list(FILTER headers EXCLUDE REGEX "/windows/")
endif()
if(NOT ROTAVUE_WORKBENCH)
    list(FILTER headers EXCLUDE REGEX "^(workbench|cli)/")
endif()

# rotavue_begins_with(SOURCE HEADER RESULT): whether HEADER is the first that SOURCE includes.
function(rotavue_begins_with source header result)
    set(${result} FALSE PARENT_SCOPE)
    if(EXISTS ${source})
        file(STRINGS ${source} includes LIMIT_COUNT 1 REGEX "^#include ")
        if(includes STREQUAL "#include \"${header}\"")
            set(${result} TRUE PARENT_SCOPE)
        endif()
    endif()
endfunction()

set(sources)
foreach(header IN LISTS headers)
    string(REGEX REPLACE "\\.h$" ".cpp" own_source ${PROJECT_SOURCE_DIR}/${header})
    rotavue_begins_with(${own_source} ${header} proven)
    if(NOT proven)
        string(MAKE_C_IDENTIFIER ${header} identifier)
        set(source ${PROJECT_BINARY_DIR}/headers/${identifier}.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
        list(APPEND sources ${source})
    endif()
endforeach()
add_library(rotavue_header_check OBJECT ${sources})
target_link_libraries(rotavue_header_check PRIVATE rotavue_options)
if(ROTAVUE_WORKBENCH)
    target_link_libraries(rotavue_header_check PRIVATE rotavue_cli rotavue_window)
endif()
