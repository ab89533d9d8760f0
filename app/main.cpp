#include <QApplication>
#include <QDir>
#include <QFile>

#include "platform/piattaforma_qt.h"
#include "start/screens/applicazione.h"

int main(int argomenti, char** testi) {
  QApplication qt(argomenti, testi);
  QApplication::setApplicationName(QStringLiteral("Velmara_2020"));
  QApplication::setQuitOnLastWindowClosed(false);  // the program ends when its own routines say so

  // All of the firm's data lies in and under the folder of the program itself.
  const QString cartella = QCoreApplication::applicationDirPath();
  QDir::setCurrent(cartella);

  Piattaforma_Qt piattaforma;
  Applicazione applicazione(piattaforma, Percorso(QFile::encodeName(cartella).toStdString()));
  return applicazione.Avvia() ? QApplication::exec() : 0;
}
