# The Debian package. scripts/package makes it with cpack and the preset `package`.
find_program(DPKG dpkg)
if(NOT DPKG)
    return()
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME brastel)
# There is no web site yet. This is a reserved name.
set(CPACK_PACKAGE_CONTACT "The Brastel developers <developers@brastel.example>")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
# The file dialog and its messages are Japanese. CPack finds the other packages, such as Qt, in the
# programs.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-ipafont-gothic | fonts-japanese-gothic")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "board game of pushing pieces and passing rings")
set(CPACK_PACKAGE_DESCRIPTION
"Brastel plays the Orvel Game. Two sides, Red and Blue, play on a board of
14 by 8 squares. Pieces move, slide, and push opponents; each side has a ring
that its pieces pass to each other. The first side whose ring carrier stands
before its goal and cannot be pushed away by the next move wins.

One person plays against the computer, at eleven strengths, or two people share
the screen. There are six start layouts, a free setup, hints and stepping back;
games are saved as small text files.")

# Debian requires compressed manual pages and change logs, and a change log in its own format.
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date -u -d ${ReleaseDate} "+%a, %d %b %Y %T %z"
    OUTPUT_VARIABLE ReleaseMailDate OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(debian/changelog.in debian/changelog @ONLY)
configure_file(debian/Finish.cmake.in debian/Finish.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/debian/Finish.cmake)

include(CPack)
