# A Debian package of the GNU install: `cmake --build build --target package`
# writes build/package/tessarondel_VERSION_ARCH.deb. Its dependencies are
# computed from the shared libraries that the two programs link.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_PACKAGE_NAME tessarondel)
set(CPACK_PACKAGE_VENDOR Larkmoor)
set(CPACK_PACKAGE_CONTACT "Larkmoor <${TESSARONDEL_SUPPORT_MAIL}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "calculator for typed expressions")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${TESSARONDEL_WEB_SERVER}/tq/index.htm")
# The summary above is the first line; this is the long description under it.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Tessarondel evaluates expressions typed as text, such as x=2*(3+sin(pi/2))%,
and keeps a numbered list of them, their results and the variables they
touched. It shows results in four number bases, defines custom functions
from small text documents, and sits in the notification area.

tessarondel-cli evaluates the same language on the command line and answers
JSON Lines requests for scripts.")
include(CPack)
