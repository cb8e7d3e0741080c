# SPDX-License-Identifier: Apache-2.0

# cmake -D KV_ID=ID -D KV_ENTRY=FILE -D KV_GUIDE=FILE -D KV_HOMEPAGE=URL -D KV_SCREENSHOT_URL=URL
#       -D KV_METAINFO=FILE -P metainfo.cmake
# Writes the AppStream metainfo, with the comments of the desktop entry; with the home page, and with the
# guide's screenshots, when the URL of the page or of the screenshots' folder is not empty.

# collect(RESULT FILE LINE ELEMENT): an element for each line of the file, joined.
function(collect result file line element)
    file(STRINGS ${file} lines ENCODING UTF-8 REGEX "${line}")
    list(TRANSFORM lines REPLACE "${line}" "${element}")
    list(JOIN lines "\n" lines)
    set(${result} "${lines}" PARENT_SCOPE)
endfunction()

collect(summary ${KV_ENTRY} "^Comment=(.*)" [[  <summary>\1</summary>]])
collect(translations ${KV_ENTRY} "^Comment\\[(.*)\\]=(.*)" [[  <summary xml:lang="\1">\2</summary>]])
set(homepage)
if(KV_HOMEPAGE)
    set(homepage "\n  <url type=\"homepage\">${KV_HOMEPAGE}</url>")
endif()
set(screenshots)
if(KV_SCREENSHOT_URL)
    collect(screenshots ${KV_GUIDE} "^!\\[(.*)\\]\\(guide/(.*)\\)"
        "    <screenshot>\n      <caption>\\1</caption>\n      <image>${KV_SCREENSHOT_URL}/\\2</image>\n    </screenshot>")
    string(REGEX REPLACE "^    <screenshot>" [[    <screenshot type="default">]] screenshots "${screenshots}")
    set(screenshots "\n  <screenshots>\n${screenshots}\n  </screenshots>")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/metainfo.xml.in ${KV_METAINFO} @ONLY)
