#include <QApplication>
#include <QFile>

#include "platform/aspetto.h"
#include "platform/piattaforma_qt.h"
#include "printing/screens/stampante_qt.h"
#include "tools/finestra_generatore.h"

// The list generator of the firm whose folder it stands in.
int main(int argomenti, char** valori) {
  const QApplication applicazione(argomenti, valori);
  Prepara_Aspetto();
  const Percorso ditta = QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
  Stampante_Qt stampante(ditta);
  Piattaforma_Qt piattaforma(stampante);
  Programma programma(piattaforma);
  programma.Nome_Programma = "Velmara_2020_Descri";
  programma.Cartella_Dati = ditta;
  programma.Separatore_Decimale = piattaforma.Separatore_Decimale();
  programma.Separatore_Altro = programma.Separatore_Decimale == '.' ? ',' : '.';
  Finestra_Generatore finestra(programma);
  finestra.show();
  return QApplication::exec();
}
