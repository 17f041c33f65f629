# The Debian package: the preset `package` builds the room for its places there, then cpack packs it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "game room with cards, domino and mahjongg for the mouse")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A small game room for one player and one mouse: video poker, poker and domino
against the computer, a chain game of domino-like tiles, ramino and mahjongg
solitaire.

The window can be any size. All words in it are Italian.")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${RELEASE_SIGNATURE}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The last opens the addresses in the main menu, and the guide.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, fonts-roboto-unhinted, xdg-utils")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_STRIP_FILES ON)
include(CPack)
