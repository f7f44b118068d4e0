# Install rules: the library, its headers, lanedoc, the CMake package, the pkg-config file and the documents.

include(CMakePackageConfigHelpers)

set(packageFolder "${CMAKE_INSTALL_LIBDIR}/cmake/FrameworkDataContainers")

if(TARGET FrameworkDataContainers)
    install(
        TARGETS FrameworkDataContainers
        EXPORT FrameworkDataContainersTargets
        LIBRARY
            DESTINATION "${CMAKE_INSTALL_LIBDIR}"
            COMPONENT Runtime
            NAMELINK_COMPONENT Development
        INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    )
    install(
        EXPORT FrameworkDataContainersTargets
        NAMESPACE FrameworkDataContainers::
        DESTINATION "${packageFolder}"
        COMPONENT Development
    )
endif()

install(
    DIRECTORY Include/Framework
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    COMPONENT Development
    FILES_MATCHING
    PATTERN "*.h"
)
install(
    DIRECTORY Source/Framework/FrameworkDataContainers/Generated/
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/FrameworkDataContainers"
    COMPONENT Development
    FILES_MATCHING
    PATTERN "*.h"
    PATTERN "FieldTableIndex.h" EXCLUDE # of the library alone
)

if(TARGET lanedoc)
    install(TARGETS lanedoc RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Runtime)
endif()

configure_package_config_file(
    cmake/FrameworkDataContainersConfig.cmake.in
    "${PROJECT_BINARY_DIR}/FrameworkDataContainersConfig.cmake"
    INSTALL_DESTINATION "${packageFolder}"
)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/FrameworkDataContainersConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion
)
install(
    FILES
        "${PROJECT_BINARY_DIR}/FrameworkDataContainersConfig.cmake"
        "${PROJECT_BINARY_DIR}/FrameworkDataContainersConfigVersion.cmake"
    DESTINATION "${packageFolder}"
    COMPONENT Development
)

# The file finds the prefix from where it stands, so that an installed tree can be moved; not when the folders were given
# as absolute paths.
set(pcFolder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(pcPrefix "${CMAKE_INSTALL_PREFIX}")
    set(pcLibraries "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(pcHeaders "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
else()
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${pcFolder}" OUTPUT_VARIABLE up)
    set(pcPrefix "\${pcfiledir}/${up}")
    set(pcLibraries "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
    set(pcHeaders "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
# Debian's Xalan-C comes without a pkg-config file; its headers are searched without an option when they stand where the
# compiler looks anyway.
set(pcXalanCflags "")
foreach(folder IN LISTS XalanC_INCLUDE_DIRS)
    if(NOT folder IN_LIST CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES)
        string(APPEND pcXalanCflags " -I${folder}")
    endif()
endforeach()
configure_file(cmake/FrameworkDataContainers.pc.in "${PROJECT_BINARY_DIR}/FrameworkDataContainers.pc" @ONLY)
install(
    FILES "${PROJECT_BINARY_DIR}/FrameworkDataContainers.pc"
    DESTINATION "${pcFolder}"
    COMPONENT Development
)

# For editors and validators, on lanes too.
install(
    DIRECTORY Source/Framework/FrameworkDataContainers/Schema/
    DESTINATION "${CMAKE_INSTALL_DATADIR}/FrameworkDataContainers/schema"
    COMPONENT Runtime
    FILES_MATCHING
    PATTERN "*.xsd"
)

install(FILES README.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT Runtime)
