# SPDX-License-Identifier: Apache-2.0

# printdialog-gtk3 and printdialog-gtk4: programs with GTK's print dialog, for tests and pictures.
foreach(gtk IN LISTS KV_GTK)
    set(program printdialog-gtk${gtk})
    if(TARGET ${program})
        continue()
    endif()
    add_executable(${program} ${CMAKE_CURRENT_LIST_DIR}/printdialog.cpp)
    target_link_libraries(${program} PRIVATE kv_options PkgConfig::GTK${gtk})
    target_compile_definitions(${program} PRIVATE
        GDK_DISABLE_DEPRECATION_WARNINGS GLIB_DISABLE_DEPRECATION_WARNINGS)
    # GLib's threads do not end.
    set_target_properties(${program} PROPERTIES
        KV_KEEPS_THREADS ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
endforeach()
