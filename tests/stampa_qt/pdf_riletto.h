#pragma once

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>

#include <QProcess>
#include <QRegularExpression>

#include "core/disco.h"
#include "platform/testo_qt.h"
#include "printing/registratore.h"

// A printed PDF read back with poppler, held against what the recorder wrote down of the same document.

inline constexpr double mezzo_millimetro = 0.5;
inline constexpr double mm_per_punto = 25.4 / 72;

inline QString Esegui(const QString& programma, const QStringList& argomenti) {
  QProcess processo;
  processo.setProcessChannelMode(QProcess::MergedChannels);
  processo.start(programma, argomenti);
  if (!processo.waitForFinished()) return "(" + programma + " non parte)";
  return QString::fromUtf8(processo.readAll()) + "esito " + QString::number(processo.exitCode());
}

inline QString In_Qt(const Percorso& file) { return QString::fromStdString(file.string()); }

struct Parola_Stampata {
  int pagina = 0;
  double x = 0, y = 0, destra = 0;  // millimetres from the sheet's corner
  QString testo;
};

inline std::vector<Parola_Stampata> Parole(const Percorso& file) {
  const QString html = Esegui("pdftotext", {"-bbox", In_Qt(file), "-"});
  static const QRegularExpression forma(
      "<page |<word xMin=\"([0-9.-]+)\" yMin=\"([0-9.-]+)\" xMax=\"([0-9.-]+)\" "
      "yMax=\"[0-9.-]+\">(.*?)</word>");
  std::vector<Parola_Stampata> esito;
  int pagina = 0;
  for (auto trovate = forma.globalMatch(html); trovate.hasNext();) {
    const auto parte = trovate.next();
    if (parte.captured(0) == "<page ") {
      ++pagina;
      continue;
    }
    QString testo = parte.captured(4);
    testo.replace("&amp;", "&").replace("&lt;", "<").replace("&gt;", ">");
    esito.push_back({pagina, parte.captured(1).toDouble() * mm_per_punto,
                     parte.captured(2).toDouble() * mm_per_punto, parte.captured(3).toDouble() * mm_per_punto,
                     testo});
  }
  return esito;
}

// What the recorder says was written: page, place of the first letter, width to the last one, the text
// between.
struct Testo_Scritto {
  int pagina = 0;
  double x = 0, y = 0, larghezza = 0;
  QString testo;
};

inline std::vector<Testo_Scritto> Testi(const Registro_Pagine& registro) {
  static const QRegularExpression forma(
      "^p(\\d+) testo (\\S+) (\\S+) (.+?) ([0-9.]+)( grassetto)?( corsivo)?: (.*)$");
  std::vector<Testo_Scritto> esito;
  for (const Testo& riga : registro.righe) {
    const auto parti = forma.match(In_QString(riga));
    if (!parti.hasMatch()) continue;
    const Testo carattere = Da_QString(parti.captured(4)), testo = Da_QString(parti.captured(8));
    const Metrica& metrica = Metrica_Della_Faccia(Faccia_Di(carattere), !parti.captured(6).isEmpty());
    const double unita = parti.captured(5).toDouble() * mm_per_punto / metrica.quadrato;
    const auto larghezza = [&](Vista parte) { return unita * static_cast<double>(Unita(metrica, parte)); };
    const Vista pieno = Pulito(testo);
    if (pieno.empty()) continue;  // blanks leave no mark
    const auto davanti = static_cast<std::size_t>(pieno.data() - testo.data());
    esito.push_back({parti.captured(1).toInt(),
                     parti.captured(2).toDouble() + larghezza(Vista(testo).substr(0, davanti)),
                     parti.captured(3).toDouble(), larghezza(pieno), In_QString(pieno)});
  }
  return esito;
}

// Every text of the recorder stands on the page, its first word where the text begins and its last where it
// ends.
inline void Esigi_Testi_Al_Posto(const Registro_Pagine& registro, const Percorso& file, double origine_x = 0,
                                 double origine_y = 0) {
  const auto parole = Parole(file);
  const auto testi = Testi(registro);
  ASSERT_FALSE(testi.empty());
  for (const Testo_Scritto& testo : testi) {
    const QStringList voci = testo.testo.split(' ', Qt::SkipEmptyParts);
    const auto al_posto = [&](const QString& voce, bool in_fine) {
      return std::any_of(parole.begin(), parole.end(), [&](const Parola_Stampata& parola) {
        const double x = in_fine ? parola.destra : parola.x;
        const double voluta = origine_x + testo.x + (in_fine ? testo.larghezza : 0);
        return parola.pagina == testo.pagina && parola.testo == voce &&
               std::abs(x - voluta) < mezzo_millimetro &&
               std::abs(parola.y - testo.y - origine_y) < mezzo_millimetro;
      });
    };
    EXPECT_TRUE(al_posto(voci.front(), false))
        << testo.testo.toStdString() << " comincia a " << testo.x << " " << testo.y;
    EXPECT_TRUE(al_posto(voci.back(), true))
        << testo.testo.toStdString() << " finisce a " << testo.x + testo.larghezza;
  }
}
