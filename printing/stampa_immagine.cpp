#include "printing/stampa_immagine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/numeri.h"
#include "printing/carte.h"
#include "printing/pagina.h"

namespace {

constexpr int massimo_copie = 99;
constexpr double tolleranza = 0.01;  // millimetres that no eye sees

bool Esce_Dal_Foglio(const FrmStampaFCPB& schermo, double scala) {
  return schermo.larghezza * scala / 100 > schermo.foglio.larghezza_stampabile + tolleranza ||
         schermo.altezza * scala / 100 > schermo.foglio.altezza_stampabile + tolleranza;
}

// The largest scale of whole per cents at which the picture stays on the sheet; at least 1.
double Scala_Massima(const FrmStampaFCPB& schermo) {
  const double larga = schermo.foglio.larghezza_stampabile / schermo.larghezza;
  const double alta = schermo.foglio.altezza_stampabile / schermo.altezza;
  return std::max(1.0, std::floor(std::min(larga, alta) * 100 + tolleranza));
}

Testo Misura(const Programma& programma, Vista cosa, double millimetri) {
  return Testo(cosa) + " " + Formato(millimetri, "#0", programma.Separatore_Decimale) + " mm";
}

void Mostra_Scala(const Programma& programma, FrmStampaFCPB& schermo) {
  schermo.txtScala.testo = Piano(schermo.scala, programma.Separatore_Decimale);
  schermo.lblFuoriFoglio.visibile = Esce_Dal_Foglio(schermo, schermo.scala);
}

void Adatta_Al_Foglio(const Programma& programma, FrmStampaFCPB& schermo) {
  if (Esce_Dal_Foglio(schermo, schermo.scala) &&
      programma.piattaforma.Domanda("Le dimensioni di stampa richieste\nsono superiori a quelle del foglio\n"
                                    "della stampante selezionata.\nPosso cambiare la scala?",
                                    Icona::Domanda, " Errore di Scala"))
    schermo.scala = Scala_Massima(schermo);
  Mostra_Scala(programma, schermo);
}

void Non_Risponde(const Programma& programma) {
  programma.piattaforma.Messaggio("Non posso accedere alla stampante richiesta.", Icona::Esclamazione,
                                  " Errore in frmStampaFCPB/OpenDocPrinter");
}

void Riempi_Stampanti(const Programma& programma, FrmStampaFCPB& schermo) {
  Printer& printer = Dispositivo(programma);
  const std::vector<Testo> nomi = printer.Stampanti();
  const auto in_uso = std::ranges::find(nomi, NomeStampante(printer));
  schermo.cboPrinterNames.Riempi(nomi);
  schermo.cboPrinterNames.scelta = in_uso == nomi.end() ? -1 : static_cast<int>(in_uso - nomi.begin());
}

void Leggi_Foglio(const Programma& programma, FrmStampaFCPB& schermo) {
  const Printer& printer = Dispositivo(programma);
  schermo.foglio = printer.Carta_In_Uso();
  const bool orizzontale = printer.Orientation() == Orizzontale;
  schermo.fraFoglio.testo =
      " Foglio: " + Testo(Nome_Carta(schermo.foglio.larghezza, schermo.foglio.altezza)) +
      (orizzontale ? ",  Landscape" : ",  Portrait");
  schermo.Altezza.testo = Misura(programma, "Altezza:", schermo.foglio.altezza);
  schermo.Larghezza.testo = Misura(programma, "Larghezza:", schermo.foglio.larghezza);
  Mostra_Scala(programma, schermo);
}

void Ricorda_Stampante(const Programma& programma, FrmStampaFCPB& schermo) {
  const Printer& printer = Dispositivo(programma);
  schermo.stampante_prima = schermo.cboPrinterNames.Scelta();
  schermo.orientamento_prima = printer.Orientation();
}

void Scrivi_Didascalie(FrmStampaFCPB& schermo) {
  schermo.Caption_NCopies.testo = "N. &di copie:";
  schermo.Caption_Scala.testo = "Sca&la:";
  schermo.Caption_Stampante.testo = "Stampante Corrente";
  schermo.lblFuoriFoglio.testo = "Stampa fuori foglio";
  schermo.lblStampaInCorso.testo = "Stampa in corso...";
  schermo.lblStampaInCorso.visibile = false;
  schermo.cmdScalaOK.testo = "OK";
  schermo.cmdScalaOK.suggerimento = schermo.txtScala.suggerimento = "OK o Invio per confermare ";
  schermo.cmdProprieta.testo = "&Proprietà"_t;
  schermo.cmdProprieta.suggerimento = "  Impostazioni stampante";
  schermo.cmdStampa.testo = "&Stampa";
  schermo.cmdChiudi.testo = "Applca e &Chiudi";
}

}  // namespace

bool StampaFCPB(const Programma& programma, FrmStampaFCPB& schermo, Vista nome, Immagine immagine,
                double larghezza, double altezza) {
  if (immagine.Vuota() || !(larghezza > 0) || !(altezza > 0)) {
    programma.piattaforma.Messaggio("La larghezza e l' altezza di stampa\nrichieste devono essere > 0.",
                                    Icona::Esclamazione, "Parametri errati.");
    return false;
  }
  Printer& printer = Dispositivo(programma);
  if (!printer.DeviceName())
    programma.piattaforma.Messaggio("Stampante di default non specificata.", Icona::Esclamazione,
                                    " Errore in frmStampaFCPB/GetDefPrinterName");
  schermo.titolo = "  Stampa di: " + Testo(nome);
  schermo.nome = Testo(nome);
  schermo.immagine = std::move(immagine);
  schermo.larghezza = larghezza;
  schermo.altezza = altezza;
  Scrivi_Didascalie(schermo);
  schermo.txtNCopies.testo = "1";
  Riempi_Stampanti(programma, schermo);
  Ricorda_Stampante(programma, schermo);
  Leggi_Foglio(programma, schermo);
  // At first as large as the sheet allows, without a question: nobody has asked for a size yet.
  schermo.scala = std::min(100.0, Scala_Massima(schermo));
  Mostra_Scala(programma, schermo);
  return true;
}

Posto_Immagine Posto_Sul_Foglio(const FrmStampaFCPB& schermo) {
  Posto_Immagine posto;
  posto.larghezza = schermo.larghezza * schermo.scala / 100;
  posto.altezza = schermo.altezza * schermo.scala / 100;
  posto.x = (schermo.foglio.larghezza_stampabile - posto.larghezza) / 2;
  posto.y = (schermo.foglio.altezza_stampabile - posto.altezza) / 2;
  return posto;
}

void ConfermaScala(const Programma& programma, FrmStampaFCPB& schermo) {
  const auto scala = Numero(schermo.txtScala.testo, programma.Separatore_Decimale);
  if (!scala || !(*scala > 0)) {
    programma.piattaforma.Messaggio("La larghezza e l' altezza di stampa\nrichieste devono essere > 0.",
                                    Icona::Esclamazione, "Parametri errati.");
    return Mostra_Scala(programma, schermo);
  }
  schermo.scala = *scala;
  Adatta_Al_Foglio(programma, schermo);
}

void CambiaStampante(const Programma& programma, FrmStampaFCPB& schermo) {
  Printer& printer = Dispositivo(programma);
  if (!printer.Scegli(schermo.cboPrinterNames.Scelta(), printer.Orientation())) {
    Non_Risponde(programma);
    Riempi_Stampanti(programma, schermo);
    return;
  }
  Leggi_Foglio(programma, schermo);
  Adatta_Al_Foglio(programma, schermo);
}

void RiprendiDaProprieta(const Programma& programma, FrmStampaFCPB& schermo) {
  const Testo prima = schermo.cboPrinterNames.Scelta();
  const int orientamento = Dispositivo(programma).Orientation();
  Riempi_Stampanti(programma, schermo);
  Leggi_Foglio(programma, schermo);
  if (schermo.cboPrinterNames.Scelta() == prima && schermo.orientamento_prima == orientamento) return;
  Ricorda_Stampante(programma, schermo);
  Adatta_Al_Foglio(programma, schermo);
}

void Print_FCPB(const Programma& programma, FrmStampaFCPB& schermo) {
  Printer& printer = Dispositivo(programma);
  const Testo nome = schermo.cboPrinterNames.Scelta();
  if (nome.empty() || !printer.Scegli(nome, printer.Orientation()) || !printer.DeviceName())
    return Non_Risponde(programma);
  const int copie = std::clamp(
      static_cast<int>(Valore(schermo.txtNCopies.testo, programma.Separatore_Decimale)), 1, massimo_copie);
  schermo.txtNCopies.testo = std::to_string(copie);
  schermo.lblStampaInCorso.visibile = true;
  programma.piattaforma.Ridipingi();
  printer.documento = {Testo_Data(programma.Oggi, "yyyymmdd"), "Immagine", "", schermo.nome};
  printer.ScaleMode(Scala_Millimetri);
  const Posto_Immagine posto = Posto_Sul_Foglio(schermo);
  for (int copia = 1; copia <= copie; ++copia) {
    if (copia > 1) printer.NewPage();
    printer.PaintPicture(schermo.immagine, static_cast<float>(posto.x), static_cast<float>(posto.y),
                         static_cast<float>(posto.larghezza), static_cast<float>(posto.altezza));
  }
  printer.EndDoc();
  schermo.lblStampaInCorso.visibile = false;
}

void ApplicaEChiudi(const Programma& programma, FrmStampaFCPB& schermo) {
  programma.piattaforma.Messaggio("la stampante corrente è "_t + NomeStampante(Dispositivo(programma)),
                                  Icona::Informazione);
  schermo.chiusa = true;
}

void LasciaStampante(const Programma& programma, FrmStampaFCPB& schermo) {
  if (std::exchange(schermo.chiusa, true) || schermo.cboPrinterNames.Scelta() == schermo.stampante_prima)
    return;
  // one that is gone meanwhile can't come back
  Dispositivo(programma).Scegli(schermo.stampante_prima, schermo.orientamento_prima);
}
