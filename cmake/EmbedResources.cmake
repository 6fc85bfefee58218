# Turns src/resources/ISO-639-2.csv into a generated source of glossmill_host, so that a binary works from anywhere.
set(GLOSSMILL_ISO_CSV "${CMAKE_SOURCE_DIR}/src/resources/ISO-639-2.csv")
set(GLOSSMILL_ISO_CPP "${CMAKE_BINARY_DIR}/generated/IsoTableResource.cpp")
add_custom_command(
  OUTPUT "${GLOSSMILL_ISO_CPP}"
  COMMAND "${CMAKE_COMMAND}" "-DINPUT=${GLOSSMILL_ISO_CSV}" "-DOUTPUT=${GLOSSMILL_ISO_CPP}"
          -P "${CMAKE_SOURCE_DIR}/cmake/EmbedFile.cmake"
  DEPENDS "${GLOSSMILL_ISO_CSV}" "${CMAKE_SOURCE_DIR}/cmake/EmbedFile.cmake"
  VERBATIM)
target_sources(glossmill_host PRIVATE "${GLOSSMILL_ISO_CPP}")
