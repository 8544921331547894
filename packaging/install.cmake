# Installing Zol Estimator (`cmake --install`, `make install PREFIX=...`) and its Debian package
# (`make package`). The programs find what is installed here relative to their own binaries, so
# the whole tree can live under any prefix.
include(GNUInstallDirs)

set(ZOL_APP_ID "com.zolblocks.Estimator")
set(ZOL_DATA_DIR "${CMAKE_INSTALL_DATADIR}/zol-estimator")
set(ZOL_LIBEXEC_DIR "${CMAKE_INSTALL_LIBEXECDIR}/zol-estimator")

# The paths the programs look in, from the bin folder.
file(RELATIVE_PATH ZOL_REL_RESOURCES "/${CMAKE_INSTALL_BINDIR}" "/${ZOL_DATA_DIR}/resources")
file(RELATIVE_PATH ZOL_REL_LIBEXEC "/${CMAKE_INSTALL_BINDIR}" "/${ZOL_LIBEXEC_DIR}")
# Set on the few files that use them, so that the rest compile as they always do (and come
# from the compiler cache).
set_source_files_properties(src/platform/ZOLInstallation.cpp PROPERTIES COMPILE_DEFINITIONS
    "ZOL_INSTALLED_RESOURCES=\"${ZOL_REL_RESOURCES}\";ZOL_INSTALLED_LIBEXEC=\"${ZOL_REL_LIBEXEC}\"")
set_source_files_properties(src/cli/main.cpp PROPERTIES COMPILE_DEFINITIONS
    "ZOL_VERSION=\"${PROJECT_VERSION}\"")

install(TARGETS zolest RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# The same files the build copies beside its programs (ZOL_RUNTIME_RESOURCES).
foreach(resource IN LISTS ZOL_RUNTIME_RESOURCES)
    get_filename_component(folder ${resource} DIRECTORY)
    install(FILES ${CMAKE_SOURCE_DIR}/resources/${resource}
        DESTINATION ${ZOL_DATA_DIR}/resources/${folder})
endforeach()
install(FILES ${CMAKE_SOURCE_DIR}/packaging/zolest.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

if(TARGET zol-estimator)
    set_source_files_properties(src/ui/app/main.cpp DIRECTORY src/ui PROPERTIES
        COMPILE_DEFINITIONS "ZOL_VERSION=\"${PROJECT_VERSION}\"")
    install(TARGETS zol-estimator RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(TARGETS zolest-render RUNTIME DESTINATION ${ZOL_LIBEXEC_DIR})
    install(FILES packaging/${ZOL_APP_ID}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES packaging/${ZOL_APP_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    install(FILES packaging/zol-estimator-mime.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME zol-estimator.xml)
    # hicolor: the scalable pictures and the PNG sizes rendered from them (packaging/icons/).
    install(DIRECTORY packaging/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
endif()

# The desktop entry and the metainfo pass their validators (when these are installed).
if(BUILD_TESTING)
    find_program(ZOL_DESKTOP_FILE_VALIDATE desktop-file-validate)
    find_program(ZOL_APPSTREAMCLI appstreamcli)
    if(ZOL_DESKTOP_FILE_VALIDATE)
        add_test(NAME desktop_entry_valid COMMAND ${ZOL_DESKTOP_FILE_VALIDATE}
            ${CMAKE_SOURCE_DIR}/packaging/${ZOL_APP_ID}.desktop)
    endif()
    if(ZOL_APPSTREAMCLI)
        add_test(NAME metainfo_valid COMMAND ${ZOL_APPSTREAMCLI} validate --no-net --pedantic
            ${CMAKE_SOURCE_DIR}/packaging/${ZOL_APP_ID}.metainfo.xml)
    endif()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zol-estimator)
set(CPACK_PACKAGE_VENDOR "Zol Blocks")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Estimating tool for Zol Blocks insulated concrete form walls")
set(CPACK_PACKAGE_DESCRIPTION "Zol Estimator takes off the blocks, accessories, rebar, \
concrete and labour of insulated concrete form walls,\nprices the job and prints the estimate; \
zolest does the same from the command line.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Zol Estimator developers <estimator@zolblocks.com>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.zolblocks.com/")
# Library dependencies come from the binaries; what they load at run time by name does not:
# the X11 platform plugin and the browser engine's helper process.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6webenginecore6-bin")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, xdg-utils")
include(CPack)
