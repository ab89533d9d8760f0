#include <QApplication>
#include <QDir>
#include <QFile>

#include "platform/aspetto.h"
#include "start/screens/ditte_finestra.h"

// What the desktop's menu starts where the program is installed for the whole machine: opens the user's firm,
// asks which one when there are several, and makes the first one.
int main(int argomenti, char** testi) {
  const QApplication qt(argomenti, testi);
  QApplication::setApplicationName(QStringLiteral("velmara"));
  QApplication::setDesktopFileName(QStringLiteral("velmara"));
  Prepara_Aspetto();
  const Percorso programmi(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString());
  const Percorso radice(QFile::encodeName(QDir::home().filePath(QStringLiteral("Velmara"))).toStdString());
  DitteFinestra finestra(programmi, radice);
  const bool chiede = QCoreApplication::arguments().contains(QStringLiteral("--scegli"));
  if (!chiede && finestra.apri_l_unica()) return 0;
  finestra.show();
  return QApplication::exec();
}
