# Classes that other generators make of the schema of our documents. They are made and built in the build folder and go
# into the benchmark alone: what both generators write is under the GPL.

find_program(XSDCXX_PROGRAM xsdcxx REQUIRED)
find_program(WSDL2H_PROGRAM wsdl2h REQUIRED)
find_program(SOAPCPP2_PROGRAM soapcpp2 REQUIRED)
# The static one, as it calls generated functions, which a program does not export.
find_library(GSOAP_LIBRARY libgsoap++.a REQUIRED)

set(schemaFolder "${PROJECT_SOURCE_DIR}/Source/Framework/FrameworkDataContainers/Schema")
set(rootNames TranslationConfig StateProcessingRoot LoggingInformation)
set(includedNames ActionData Common Enumerations LongVocabularies)
list(TRANSFORM rootNames REPLACE "(.+)" "${schemaFolder}/\\1.xsd" OUTPUT_VARIABLE rootFiles)
list(TRANSFORM includedNames REPLACE "(.+)" "${schemaFolder}/\\1.xsd" OUTPUT_VARIABLE includedFiles)

# One pair of files for each schema file.
set(xsdFolder "${CMAKE_CURRENT_BINARY_DIR}/XsdTree")
list(TRANSFORM rootNames REPLACE "(.+)" "${xsdFolder}/\\1.cxx" OUTPUT_VARIABLE xsdSources)
list(TRANSFORM includedNames REPLACE "(.+)" "${xsdFolder}/\\1.cxx" OUTPUT_VARIABLE moreXsdSources)
list(APPEND xsdSources ${moreXsdSources})
file(MAKE_DIRECTORY "${xsdFolder}")
add_custom_command(
    OUTPUT ${xsdSources}
    COMMAND
        "${XSDCXX_PROGRAM}" cxx-tree --std c++11 --generate-serialization --namespace-map =XsdTree
        --root-element TranslationConfig --root-element StateProcessingRoot --root-element LoggingInformationPacket
        --output-dir "${xsdFolder}" ${rootFiles} ${includedFiles}
    DEPENDS ${rootFiles} ${includedFiles}
    COMMENT "Generating the classes of XSD C++/Tree"
    VERBATIM
)

# The second header is empty: of it is made what the runtime wants outside any namespace.
set(soapFolder "${CMAKE_CURRENT_BINARY_DIR}/Gsoap")
set(soapOptions -0 -CS -L -w -x -c++11)
file(MAKE_DIRECTORY "${soapFolder}/Env")
file(TOUCH "${soapFolder}/Env/Env.h")
add_custom_command(
    OUTPUT "${soapFolder}/GsoapC.cpp" "${soapFolder}/Env/envC.cpp"
    COMMAND "${WSDL2H_PROGRAM}" -c++11 -g -j -L -O2 -P -W -x -o "${soapFolder}/Gsoap.h" ${rootFiles}
    COMMAND "${SOAPCPP2_PROGRAM}" ${soapOptions} -q Gsoap -d "${soapFolder}" "${soapFolder}/Gsoap.h"
    COMMAND "${SOAPCPP2_PROGRAM}" -CS -L -w -x -c++11 -p env -d "${soapFolder}/Env" "${soapFolder}/Env/Env.h"
    DEPENDS ${rootFiles} ${includedFiles}
    COMMENT "Generating the classes of gSOAP"
    VERBATIM
)

# Their code draws warnings that are not ours to mend.
add_library(GeneratedPeers OBJECT ${xsdSources} "${soapFolder}/GsoapC.cpp" "${soapFolder}/Env/envC.cpp")
target_compile_features(GeneratedPeers PUBLIC cxx_std_20)
target_compile_options(GeneratedPeers PRIVATE -w)
target_include_directories(GeneratedPeers SYSTEM PUBLIC "${xsdFolder}" "${soapFolder}")
target_link_libraries(GeneratedPeers PUBLIC XercesC::XercesC "${GSOAP_LIBRARY}")
