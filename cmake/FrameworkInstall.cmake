# Install rules: the library, its headers, lanedoc, the CMake package and the documents.

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

install(FILES README.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT Runtime)
