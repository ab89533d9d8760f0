# Writes SORGENTE: the function Dato_Incorporato of lists/dati.h with the bytes of the files of ELENCO (paths
# joined by "|").
string(REPLACE "|" ";" percorsi "${ELENCO}")
file(WRITE ${SORGENTE}.nuovo "#include \"lists/dati.h\"\n\nstd::string_view Dato_Incorporato(std::string_view nome) {\n")
foreach(percorso IN LISTS percorsi)
  get_filename_component(nome "${percorso}" NAME)
  file(READ "${percorso}" contenuto)
  file(APPEND ${SORGENTE}.nuovo "  if (nome == \"${nome}\") return R\"~~dati~~(")
  file(APPEND ${SORGENTE}.nuovo "${contenuto}")
  file(APPEND ${SORGENTE}.nuovo ")~~dati~~\";\n")
endforeach()
file(APPEND ${SORGENTE}.nuovo "  return {};\n}\n")
file(RENAME ${SORGENTE}.nuovo ${SORGENTE})
