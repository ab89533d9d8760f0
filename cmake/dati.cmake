# The data files under data/ become part of the program, so that a firm's folder copied elsewhere still runs.
#
# velmara_dati(target): every data/*.tsv is put into a source file of the build folder as a raw string. The source
# is made again when one of the files changes, appears or goes.
set(VELMARA_INCORPORA ${CMAKE_CURRENT_LIST_DIR}/incorpora.cmake)

function(velmara_dati bersaglio)
  file(GLOB file_dati CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/*.tsv)
  set(sorgente ${PROJECT_BINARY_DIR}/dati/dati_incorporati.cpp)
  string(REPLACE ";" "|" elenco "${file_dati}")
  add_custom_command(
    OUTPUT ${sorgente}
    COMMAND ${CMAKE_COMMAND} "-DELENCO=${elenco}" "-DSORGENTE=${sorgente}" -P ${VELMARA_INCORPORA}
    DEPENDS ${file_dati} ${VELMARA_INCORPORA}
    COMMENT "Incorporating the data files"
    VERBATIM)
  target_sources(${bersaglio} PRIVATE ${sorgente})
endfunction()
