#include "tests/operatori/macchina.h"

#include <array>
#include <cerrno>

#include <QEvent>
#include <QEventLoop>

#include "core/numeri.h"
#include "lists/liste.h"
#include "platform/finestra.h"
#include "tools/finestra_generatore.h"

namespace operatori {

namespace {

constexpr int ogni_ridipintura = 50;  // by count, not by time: the same seed sees the same

constexpr std::array testi = {
    // of the trade
    "1", "2", "7", "12", "27", "100", "0", "00101", "00102", "00143", "07", "0001", "12,5", "9,80", "-11,25",
    "0,5", "3.75", "1.234,56", "10", "22", "4", "14/03/2025", "13/03/25", "31/12/2038", "29/02/2024", "2025",
    "9999", "20250314", "A0837", "A", "or", "pes", "Orata", "Laguna Pesca", "Maestrale", "no", "XXX", "SBG",
    "IT Italia", "L1403", "stella", "*or", "Pescheria Rialto", "Perché", "riga 1", "Mare Nostrum s.n.c.",
    // of nobody
    "", " ", "  ", ",", ".", "-", "--", "+", "/", "\\", "*", "?", "%", "&", "&&", ";", "\"", "'", "~", "|",
    "#", "../fuori", "..\\fuori", "../../fuori.txt", "./", "CON", "a/b/c.txt", "~/casa", "$(touch x)",
    "`touch x`", "%s%n%d", "%1%2", "<b>grasso</b>", "<img src=x>", "=1+1", "'; --", "_r_00101", "[VELMARA]",
    "a=b", "#FINE", "-1", "-0", "00000", "32767", "32768", "65536", "2147483647", "2147483648", "-2147483649",
    "99999999999999999999", "1e308", "1E400", "0x10", "NaN", "inf", "0,0000001", "1,2,3", "1.2.3", "12,",
    ",5", "32/13/2025", "00/00/0000", "29/02/2025", "01/01/1600", "31/12/9999", "99999",
    "aaaaaaaaaaaaaaaaaaaa", "uno\tdue", "tre\nquattro", "cinque\r\nsei\t\t", "àèéìòù", "ÀÈÉÌÒÙ", "ßÿ€…",
    "日本", "🐟", "e\u0301", "\u200b", "Ω", "\u00a0",
    "Lorem ipsum dolor sit amet consectetur adipiscing elit sed do eiusmod tempor incididunt ut labore et "
    "dolore magna aliqua ut enim ad minim veniam quis nostrud exercitation ullamco laboris nisi ut aliquip "
    "ex "
    "ea commodo consequat duis aute irure dolor in reprehenderit in voluptate velit esse cillum dolore"};

// Shows a window and lets events through until it is closed.
class Fino_Alla_Chiusura : public QObject {
 public:
  explicit Fino_Alla_Chiusura(QWidget& finestra) {
    finestra.installEventFilter(this);
    finestra.show();
    finestra.activateWindow();
    giro_.exec();
  }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::Hide) giro_.quit();
    return QObject::eventFilter(oggetto, evento);
  }

 private:
  QEventLoop giro_;
};

}  // namespace

std::span<const char* const> Testi_Battuti() { return testi; }

void Macchina::Messaggio(const Testo& testo, Icona, const Testo& titolo) {
  ++mostrati;
  Mostra_Finestre();
  mostrato(testo, titolo, "");
}

bool Macchina::Domanda(const Testo& testo, Icona, const Testo& titolo) {
  ++mostrati;
  Mostra_Finestre();
  const bool si = docile || !caso_.una_su(3);
  mostrato(testo, titolo, si ? "OK" : "Annulla");
  return si;
}

std::optional<Testo> Macchina::Chiedi(const Testo& testo, const Testo& titolo, const Testo& proposta) {
  ++mostrati;
  Mostra_Finestre();
  std::optional<Testo> esito = proposta;
  if (!docile && caso_.una_su(4))
    esito.reset();
  else if (!docile && !caso_.una_su(3))
    esito = Senza_Separatori(Da_Utf8(caso_.uno(Testi_Battuti())));  // as the input box does
  mostrato(testo, titolo, esito ? "\"" + In_Utf8(*esito) + "\"" : "Annulla");
  return esito;
}

void Macchina::Ridipingi() {
  if (++ridipinture_ % ogni_ridipintura == 0) Mostra_Finestre();
}

bool Macchina::Avvia_Programma(const Percorso& file, const std::vector<Testo>& argomenti) {
  Piattaforma_Copione::Avvia_Programma(file, argomenti);
  const bool parte = docile || !caso_.una_su(3);
  if (parte && Inizia(Nome_File(file), "Velmara_2020_Descri")) Mostra_Generatore(file.parent_path());
  return parte;
}

// Either in the folder of the firm, which the program still holds, or in one without a list, where one file
// can't be written. In neither does it start the program by itself, which would go by the clock.
void Macchina::Mostra_Generatore(const Percorso& ditta) {
  Programma suo(*this);
  suo.Cartella_Dati = ditta;
  if (caso_.una_su(2)) {
    suo.Cartella_Dati = ditta.parent_path() / "nuova";
    std::filesystem::remove_all(suo.Cartella_Dati);
    std::filesystem::create_directories(suo.Cartella_Dati);
    suo.disco.guasto = [](const Percorso& file) { return Nome_File(file) == nomi_file::Zone ? ENOSPC : 0; };
  }
  suo.Separatore_Decimale = Separatore_Decimale();
  suo.Separatore_Altro = Altro_Separatore(suo.Separatore_Decimale);
  Finestra_Generatore finestra(suo);
  finestra.setProperty("schermata", true);
  finestra.setWindowModality(Qt::ApplicationModal);
  Fino_Alla_Chiusura attesa(finestra);
}

}  // namespace operatori
