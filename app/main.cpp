#include <QApplication>
#include <QDir>
#include <QFile>

#include "platform/aspetto.h"
#include "platform/piattaforma_qt.h"
#include "printing/screens/stampante_qt.h"
#include "start/screens/applicazione.h"

int main(int argomenti, char** testi) {
  QApplication qt(argomenti, testi);
  QApplication::setApplicationName(QStringLiteral("Velmara_2020"));
  QApplication::setQuitOnLastWindowClosed(false);  // the program ends when its own routines say so
  Prepara_Aspetto();

  // All of the firm's data lies in and under the folder of the program itself.
  const QString cartella = QCoreApplication::applicationDirPath();
  QDir::setCurrent(cartella);

  const Percorso ditta(QFile::encodeName(cartella).toStdString());
  Stampante_Qt stampante(ditta);
  Piattaforma_Qt piattaforma(stampante);
  stampante.mostra = [&](const Percorso& file) { piattaforma.Mostra_Finito(file); };
  stampante.avviso = [&](const Testo& testo) { piattaforma.Messaggio(testo, Icona::Esclamazione, {}); };
  Applicazione applicazione(piattaforma, ditta);
  return applicazione.Avvia() ? QApplication::exec() : 0;
}
