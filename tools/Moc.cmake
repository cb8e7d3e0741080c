# SPDX-License-Identifier: Apache-2.0

# Has moc make what sources include of it. AUTOMOC would read each source with all of Qt's headers, and
# compile one more file for each target, which takes several times as long.

# kv_moc(TARGET [VERSION] [HEADERS HEADER ...]): makes what the target's sources include of moc, for
# that version of Qt, or that of KV_QT, or 6. What it makes of the headers is compiled with the sources.
function(kv_moc target)
    cmake_parse_arguments(moc "" "" "HEADERS" ${ARGN})
    set(qt 6 ${KV_QT} ${moc_UNPARSED_ARGUMENTS})
    list(GET qt -1 qt)
    # Only the macros of plug-ins need headers of Qt's.
    get_target_property(type ${target} TYPE)
    set(with_headers)
    if(type STREQUAL "MODULE_LIBRARY")
        set(with_headers TARGET ${target})
    endif()
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_moc)
    file(MAKE_DIRECTORY ${folder})
    target_include_directories(${target} PRIVATE ${folder})

    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "^[^/].*\\.cpp$")
    foreach(source IN LISTS sources)
        cmake_path(GET source PARENT_PATH source_folder)
        file(STRINGS ${source} includes REGEX "^#include \"(moc_.+\\.cpp|[^/]+\\.moc)\"$")
        foreach(include IN LISTS includes)
            string(REGEX REPLACE ".*\"(.*)\"" "\\1" made "${include}")
            set(input ${source})
            if(made MATCHES "^moc_(.+)\\.cpp$")
                cmake_path(APPEND source_folder ${CMAKE_MATCH_1}.h OUTPUT_VARIABLE input)
            endif()
            cmake_language(CALL qt${qt}_generate_moc ${input} ${folder}/${made} ${with_headers})
            set_source_files_properties(${folder}/${made} PROPERTIES HEADER_FILE_ONLY ON)
            target_sources(${target} PRIVATE ${folder}/${made})
        endforeach()
    endforeach()
    foreach(header IN LISTS moc_HEADERS)
        cmake_path(GET header STEM name)
        cmake_language(CALL qt${qt}_generate_moc ${header} ${folder}/moc_${name}.cpp ${with_headers})
        target_sources(${target} PRIVATE ${folder}/moc_${name}.cpp)
    endforeach()
endfunction()
