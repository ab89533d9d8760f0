#include "printing/schermo_stampante.h"

#include <algorithm>

#include "printing/nomi_stampe.h"
#include "printing/pagina.h"

namespace {

void Mostra_Scelta(Programma& programma, SchermoStampante& schermo) {
  Printer& printer = Dispositivo(programma);
  TitoloStampante(printer, schermo.Corrente);
  const std::vector<Testo> nomi = printer.Stampanti();
  const auto in_uso = std::find(nomi.begin(), nomi.end(), NomeStampante(printer));
  schermo.Stampanti.Riempi(nomi);
  schermo.Stampanti.scelta = in_uso == nomi.end() ? -1 : static_cast<int>(in_uso - nomi.begin());
  Scegli_Orientamento(schermo, printer.Orientation() == Orizzontale);
  schermo.ApriPDF.segnata = printer.Apri_Alla_Fine;
  schermo.ApriUltimo.attivo = !printer.Ultimo_PDF().empty();
}

}  // namespace

void Apri_Stampante(Programma& programma, SchermoStampante& schermo) {
  schermo.Verticale.didascalia = "&Verticale";
  schermo.Orizzontale.didascalia = "&Orizzontale";
  schermo.ApriPDF.didascalia = "Apri ogni &PDF appena finito";
  schermo.Stampe.testo = "I PDF vanno nella cartella\n" +
                         Testo_Percorso(Unisci_Percorso(programma.Cartella_Dati, Cartella_Stampe));
  schermo.Applica.testo = "&Applica";
  schermo.ApriUltimo.testo = "Apri l'&ultimo PDF";
  schermo.Chiudi.testo = "&Chiudi";
  Mostra_Scelta(programma, schermo);
}

void Scegli_Orientamento(SchermoStampante& schermo, bool orizzontale) {
  schermo.Orizzontale.segnata = orizzontale;
  schermo.Verticale.segnata = !orizzontale;
}

bool Applica_Stampante(Programma& programma, SchermoStampante& schermo) {
  if (schermo.Stampanti.scelta < 0) {
    programma.piattaforma.Messaggio("Scegliere prima una stampante dalla lista.");
    return false;
  }
  Printer& printer = Dispositivo(programma);
  const Testo nome = schermo.Stampanti.Scelta();
  printer.Apri_Alla_Fine = schermo.ApriPDF.segnata;
  const bool presa = printer.Scegli(nome, schermo.Orizzontale.segnata ? Orizzontale : Verticale);
  Mostra_Scelta(programma, schermo);
  if (!presa)
    programma.piattaforma.Messaggio("La stampante\n" + nome + "\nnon risponde. Resta quella di prima:\n" +
                                    schermo.Corrente.testo);
  return presa;
}

void Mostra_Ultimo_PDF(Programma& programma, const SchermoStampante& schermo) {
  const Percorso file = Dispositivo(programma).Ultimo_PDF();
  if (schermo.ApriUltimo.attivo && !file.empty()) programma.piattaforma.Apri_Con_Desktop(file);
}
