# SPDX-License-Identifier: Apache-2.0

# The target "kvlint" runs clang-tidy. Most of its time goes into Qt's headers, so all sources are one source
# for it. Nothing is built but what moc makes.

# Sets a variable to the targets that are made in the folder and those below it.
function(kv_targets_below folder result)
    get_directory_property(targets DIRECTORY ${folder} BUILDSYSTEM_TARGETS)
    get_directory_property(folders DIRECTORY ${folder} SUBDIRECTORIES)
    foreach(subfolder IN LISTS folders)
        kv_targets_below(${subfolder} more)
        list(APPEND targets ${more})
    endforeach()
    set(${result} ${targets} PARENT_SCOPE)
endfunction()

# kv_add_lint(FOLDER ...): checks all that is compiled in the folders.
function(kv_add_lint)
    set(lint kvlint-sources)
    add_library(${lint} OBJECT)
    set(sources)
    foreach(folder IN LISTS ARGN)
        kv_targets_below(${PROJECT_SOURCE_DIR}/${folder} targets)
        foreach(target IN LISTS targets)
            get_target_property(type ${target} TYPE)
            if(NOT type MATCHES "EXECUTABLE|LIBRARY" OR target MATCHES "^kvlint-|-gtk[34]$")
                continue()
            endif()
            get_target_property(own ${target} SOURCES)
            get_target_property(source_folder ${target} SOURCE_DIR)
            list(FILTER own INCLUDE REGEX "\\.cpp$")
            list(FILTER own EXCLUDE REGEX "^/")
            list(TRANSFORM own PREPEND ${source_folder}/)
            list(APPEND sources ${own})
            foreach(property IN ITEMS COMPILE_DEFINITIONS INCLUDE_DIRECTORIES LINK_LIBRARIES)
                get_target_property(values ${target} ${property})
                if(values)
                    set_property(TARGET ${lint} APPEND PROPERTY ${property} ${values})
                endif()
            endforeach()
        endforeach()
    endforeach()
    foreach(property IN ITEMS COMPILE_DEFINITIONS INCLUDE_DIRECTORIES LINK_LIBRARIES)
        get_target_property(values ${lint} ${property})
        if(values)
            list(REMOVE_DUPLICATES values)
            set_target_properties(${lint} PROPERTIES ${property} "${values}")
        endif()
    endforeach()
    list(TRANSFORM sources REPLACE "[^/]+/\\.\\./" "")
    list(REMOVE_DUPLICATES sources)
    target_sources(${lint} PRIVATE ${sources})
    # Of all that is linted, so that nothing has to be built before.
    set_target_properties(${lint} PROPERTIES AUTOMOC ON AUTOMOC_COMPILER_PREDEFINES OFF)
    # What moc makes of several plug-ins does not go together.
    set_source_files_properties(
        ${CMAKE_CURRENT_BINARY_DIR}/${lint}_autogen/mocs_compilation.cpp
        PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    # Each program has a function "main".
    set_target_properties(${lint} PROPERTIES
        AUTOGEN_ORIGIN_DEPENDS OFF UNITY_BUILD_UNIQUE_ID KV_SOURCE
        UNITY_BUILD_CODE_BEFORE_INCLUDE "#undef main\n#define main KV_SOURCE")
    add_custom_target(kvlint
        COMMAND clang-tidy-19 -quiet -p ${CMAKE_BINARY_DIR}
                ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${lint}.dir/Unity/unity_0_cxx.cxx
                2> ${CMAKE_BINARY_DIR}/tidy.log
        DEPENDS ${lint}_autogen VERBATIM)
    # GTK's headers do not go together with those of another version.
    foreach(gtk IN LISTS KV_GTK)
        get_target_property(folder kvprintbackend-gtk${gtk} BINARY_DIR)
        add_custom_command(TARGET kvlint POST_BUILD
            COMMAND clang-tidy-19 -quiet -p ${CMAKE_BINARY_DIR}
                    ${folder}/CMakeFiles/kvprintbackend-gtk${gtk}.dir/Unity/unity_0_cxx.cxx
                    2> ${CMAKE_BINARY_DIR}/tidy-gtk${gtk}.log
            VERBATIM)
    endforeach()
endfunction()

kv_add_lint(src demo bench)
