# Reads the newest release from CHANGELOG.md and sets:
#   ReleaseDate     2026-11-23
#   ReleaseChanges  an AppStream list, an item for each change
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md Changelog)
if(NOT Changelog MATCHES "\n## ([0-9.]+) - ([0-9-]+)\n+(.*)")
    message(FATAL_ERROR "CHANGELOG.md has no line like \"## 1.0.0 - 2026-11-23\"")
endif()
set(ReleaseVersion ${CMAKE_MATCH_1})
set(ReleaseDate ${CMAKE_MATCH_2})
set(ReleaseChanges "${CMAKE_MATCH_3}")

if(NOT ReleaseVersion VERSION_EQUAL PROJECT_VERSION)
    message(FATAL_ERROR "CHANGELOG.md's newest release is ${ReleaseVersion}, "
                        "but CMakeLists.txt calls the project ${PROJECT_VERSION}")
endif()

string(REGEX REPLACE "\n## .*" "" ReleaseChanges "${ReleaseChanges}")
string(REPLACE "&" "&amp;" ReleaseChanges "${ReleaseChanges}")
string(REPLACE "<" "&lt;" ReleaseChanges "${ReleaseChanges}")
string(REPLACE ">" "&gt;" ReleaseChanges "${ReleaseChanges}")
string(REPLACE "\n  " " " ReleaseChanges "${ReleaseChanges}")
string(REGEX REPLACE "- ([^\n]*)\n+" "          <li>\\1</li>\n"
    ReleaseChanges "${ReleaseChanges}")
string(STRIP "${ReleaseChanges}" ReleaseChanges)
