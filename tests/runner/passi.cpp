#include "tests/runner/passi.h"

#include <array>
#include <cerrno>
#include <iterator>

#include <QApplication>
#include <QClipboard>

#include "platform/finestra.h"
#include "tests/runner/controlli.h"
#include "tests/runner/foto.h"
#include "tests/runner/gesti.h"

namespace giornata {

namespace {

QString Q(const std::string& utf8) { return QString::fromStdString(utf8); }

Percorso Ditta_Pronta(Scena& scena) {
  if (!scena.ditta_scelta) Prepara_Ditta(scena, nullptr);
  return scena.ditta;
}

void Esigi_Acceso(const Scena& scena) {
  if (!scena.applicazione) throw Fallito("il programma avviato", "non è in funzione");
}

// ---- the machine and the firm's folder

void Ditta(Scena& scena, const Argomenti& a) {
  const Percorso origine = Accanto(scena, a[0].testo);
  Prepara_Ditta(scena, &origine);
}
void Oggi(Scena& scena, const Argomenti& a) { scena.macchina.oggi = *Leggi_Giorno(a[0].testo); }
void Separatore(Scena& scena, const Argomenti& a) { scena.macchina.separatore = a[0].testo[0]; }
void Rispondi_OK(Scena& scena, const Argomenti&) { scena.macchina.risposte.push_back(Tasto_Risposta::OK); }
void Rispondi_Annulla(Scena& scena, const Argomenti&) {
  scena.macchina.risposte.push_back(Tasto_Risposta::Annulla);
}
void Rispondi(Scena& scena, const Argomenti& a) { scena.macchina.risposte.push_back(Da_Utf8(a[0].testo)); }
void Esc_Dopo(Scena& scena, const Argomenti& a) { scena.macchina.ferma_fra = std::stoi(a[0].testo); }
void Guasto_Fine(Scena& scena, const Argomenti&) { scena.guasti.clear(); }
void Guasto_A(Scena& scena, const Argomenti& a) { scena.guasti.push_back(Nel_Disco(scena, a[0].testo)); }
void Disco_Protetto(Scena& scena, const Argomenti&) { Proteggi_Ditta(scena); }
void Stampante_Nessuna(Scena& scena, const Argomenti&) { scena.macchina.stampante.reset(); }
void Stampante_Verticale(Scena& scena, const Argomenti& a) {
  scena.macchina.stampante = Stampante{Da_Utf8(a[0].testo), false};
}
void Stampante_Orizzontale(Scena& scena, const Argomenti& a) {
  scena.macchina.stampante = Stampante{Da_Utf8(a[0].testo), true};
}
void Appunti(Scena& scena, const Argomenti& a) {
  scena.macchina.appunti = Da_Utf8(a[0].testo);
  QApplication::clipboard()->setText(Q(a[0].testo));
}
void Volume_Montato(Scena& scena, const Argomenti& a) {
  Aggiungi_Volume(scena, a[0].testo, a[1].testo, a[2].testo);
}

// ---- gestures

void Avvia(Scena& scena, const Argomenti&) {
  if (scena.applicazione) throw Fallito("il programma non ancora avviato", "è in funzione");
  const Percorso cartella = Ditta_Pronta(scena);
  std::filesystem::current_path(cartella);
  scena.macchina.terminata = false;
  scena.uscita = false;
  if (scena.album) scena.macchina.carta = &scena.album->carta(cartella);
  scena.applicazione = std::make_unique<Applicazione>(scena.macchina, cartella);
  scena.applicazione->programma().disco.guasto = [&scena](const Percorso& p) {
    return Guasto(scena, p) ? ENOSPC : 0;
  };
  if (!scena.applicazione->Avvia()) scena.applicazione.reset();
}

// The way out is the operator's: each screen is closed by its own command, the start screen with "Abbandona".
// One screen a time, since closing one may ask, save and bring another to the front.
Esito_Passo Esci(Scena& scena, const Argomenti&) {
  if (!scena.applicazione) {
    if (!scena.uscita) Esigi_Acceso(scena);
    scena.uscita = false;
    return Esito_Passo::Fatto;
  }
  scena.uscita = true;
  if (scena.macchina.terminata) return Esito_Passo::Continua;
  QWidget* schermo = Schermo_Attivo();
  if (!schermo) return Esito_Passo::Continua;
  const std::string nome = schermo->objectName().toStdString();
  const auto bottone = [&](const char* quale) {
    auto* trovato = schermo->findChild<QWidget*>(QLatin1String(quale));
    return trovato && trovato->isVisible() && trovato->isEnabled() ? trovato : nullptr;
  };
  QWidget* comando = bottone(nome == "B_Inizio" ? "Command1" : "Chiudi");
  if (comando)
    Clic({comando, nullptr}, Qt::LeftButton);
  else
    schermo->window()->close();  // the X of the window
  return Esito_Passo::Continua;
}

void Scrivi_Testo(Scena& scena, const Argomenti& a) {
  Esigi_Acceso(scena);
  Scrivi(Q(a[0].testo));
}
void Tasto_Premuto(Scena& scena, const Argomenti& a) {
  Esigi_Acceso(scena);
  Premi_Tasto(*Leggi_Tasto(a[0].testo));
}
Controllo_Trovato Controllo_Di(Scena& scena, const Argomenti& a) {
  Esigi_Acceso(scena);
  return Trova_Controllo(a[0]);
}
void Clic_Sinistro(Scena& scena, const Argomenti& a) { Clic(Controllo_Di(scena, a), Qt::LeftButton); }
void Clic_Destro(Scena& scena, const Argomenti& a) { Clic(Controllo_Di(scena, a), Qt::RightButton); }
void Doppio(Scena& scena, const Argomenti& a) { Clic(Controllo_Di(scena, a), Qt::LeftButton, true); }
void Fuoco(Scena& scena, const Argomenti& a) { Da_Fuoco(Controllo_Di(scena, a)); }
void Metti_Testo(Scena& scena, const Argomenti& a) { Metti(Controllo_Di(scena, a), Q(a[1].testo)); }
void Scegli_Numero(Scena& scena, const Argomenti& a) {
  Scegli(Controllo_Di(scena, a), std::stoi(a[1].testo) - 1);
}
void Scegli_Testo(Scena& scena, const Argomenti& a) {
  const Controllo_Trovato controllo = Controllo_Di(scena, a);
  if (!Ha_Righe(controllo)) throw Fallito("una lista o un combo", Nome_Controllo(controllo));
  const int riga = Cerca_Riga(controllo, Q(a[1].testo));
  if (riga < 0) throw Fallito("una riga che contiene " + Citato(a[1].testo), Prime_Righe(controllo));
  Scegli(controllo, riga);
}
void Menu(Scena& scena, const Argomenti& a) {
  Esigi_Acceso(scena);
  std::vector<QString> didascalie;
  for (const Parola& parola : a) didascalie.push_back(Q(parola.testo));
  Scegli_Menu(didascalie);
}

// ---- checks

void Finestra_Si_Chiama(Scena& scena, const Argomenti& a) {
  Esigi_Acceso(scena);
  const QWidget* schermo = Schermo_Attivo();
  const std::string trovato = schermo ? schermo->objectName().toStdString() : "nessuna finestra";
  if (trovato != a[0].testo) throw Fallito("la finestra " + a[0].testo, trovato);
}

std::string Titolo(Scena& scena) {
  Esigi_Acceso(scena);
  const QWidget* schermo = Schermo_Attivo();
  if (!schermo) throw Fallito("una finestra", "nessuna");
  return schermo->windowTitle().toStdString();
}
void Esigi_Testo(const std::string& voluto, const std::string& trovato) {
  if (voluto != trovato) throw Fallito(Citato(voluto), Citato(trovato));
}
void Esigi_Parte(const std::string& voluto, const std::string& trovato) {
  if (trovato.find(voluto) == std::string::npos)
    throw Fallito("un testo che contiene " + Citato(voluto), Citato(trovato));
}
void Titolo_Uguale(Scena& scena, const Argomenti& a) { Esigi_Testo(a[0].testo, Titolo(scena)); }
void Titolo_Contiene(Scena& scena, const Argomenti& a) { Esigi_Parte(a[0].testo, Titolo(scena)); }

std::string Primo_Messaggio(const Scena& scena, const Argomenti& a) {
  if (scena.macchina.messaggi.empty())
    throw Fallito("il messaggio " + Citato(a[0].testo), "nessun messaggio");
  return In_Utf8(scena.macchina.messaggi.front());
}
void Messaggio_Uguale(Scena& scena, const Argomenti& a) {
  Esigi_Testo(a[0].testo, Primo_Messaggio(scena, a));
  scena.macchina.messaggi.pop_front();
}
void Messaggio_Contiene(Scena& scena, const Argomenti& a) {
  Esigi_Parte(a[0].testo, Primo_Messaggio(scena, a));
  scena.macchina.messaggi.pop_front();
}
void Nessun_Messaggio(Scena& scena, const Argomenti&) {
  if (!scena.macchina.messaggi.empty())
    throw Fallito("nessun messaggio", Citato(In_Utf8(scena.macchina.messaggi.front())));
}
void Domanda_Fatta(Scena& scena, const Argomenti& a) {
  std::deque<Testo>& domande = scena.macchina.domande;
  std::string fatte;
  for (std::size_t i = 0; i < domande.size(); ++i) {
    const std::string testo = In_Utf8(domande[i]);
    if (testo == a[0].testo) {
      domande.erase(domande.begin(), domande.begin() + static_cast<std::ptrdiff_t>(i) + 1);
      return;
    }
    fatte += (fatte.empty() ? "" : ", ") + Citato(testo);
  }
  throw Fallito("la domanda " + Citato(a[0].testo), fatte.empty() ? "nessuna domanda" : fatte);
}

void Vale(Scena& scena, const Argomenti& a) {
  const Controllo_Trovato controllo = Controllo_Di(scena, a);
  const QString trovato = Testo_Controllo(controllo);
  const bool uguale =
      trovato == Q(a[1].testo) ||
      (Ha_Didascalia(controllo) && Senza_E_Commerciale(trovato) == Senza_E_Commerciale(Q(a[1].testo)));
  if (!uguale)
    throw Fallito(Nome_Controllo(controllo) + " " + Citato(a[1].testo), Citato(trovato.toStdString()));
}
void Contiene_Testo(Scena& scena, const Argomenti& a) {
  const Controllo_Trovato controllo = Controllo_Di(scena, a);
  if (Ha_Righe(controllo)) {
    if (Cerca_Riga(controllo, Q(a[1].testo)) < 0)
      throw Fallito(Nome_Controllo(controllo) + " con una riga che contiene " + Citato(a[1].testo),
                    Prime_Righe(controllo));
    return;
  }
  Esigi_Parte(a[1].testo, Testo_Controllo(controllo).toStdString());
}
void Righe_Della_Lista(Scena& scena, const Argomenti& a) {
  const Controllo_Trovato controllo = Controllo_Di(scena, a);
  if (Numero_Righe(controllo) != std::stoi(a[1].testo))
    throw Fallito(a[1].testo + " righe", Prime_Righe(controllo));
}

void Esigi_Stato(const Controllo_Trovato& controllo, bool si, const char* voluto, const char* altro) {
  if (!si) throw Fallito(Nome_Controllo(controllo) + " " + voluto, altro);
}
template <bool (*stato)(const Controllo_Trovato&), bool voluto>
void Stato(Scena& scena, const Argomenti& a, const char* se_vero, const char* se_falso) {
  const Controllo_Trovato controllo = Controllo_Di(scena, a);
  Esigi_Stato(controllo, stato(controllo) == voluto, voluto ? se_vero : se_falso,
              voluto ? se_falso : se_vero);
}
void E_Attivo(Scena& s, const Argomenti& a) { Stato<Attivo, true>(s, a, "attivo", "inattivo"); }
void E_Inattivo(Scena& s, const Argomenti& a) { Stato<Attivo, false>(s, a, "attivo", "inattivo"); }
void E_Visibile(Scena& s, const Argomenti& a) { Stato<Visibile, true>(s, a, "visibile", "nascosto"); }
void E_Nascosto(Scena& s, const Argomenti& a) { Stato<Visibile, false>(s, a, "visibile", "nascosto"); }
void E_Segnato(Scena& s, const Argomenti& a) { Stato<Segnato, true>(s, a, "segnato", "non segnato"); }
void E_Non_Segnato(Scena& s, const Argomenti& a) { Stato<Segnato, false>(s, a, "segnato", "non segnato"); }
void Col_Fuoco(Scena& scena, const Argomenti& a) {
  const Controllo_Trovato controllo = Controllo_Di(scena, a);
  QWidget* fuoco = QApplication::focusWidget();
  if (!Ha_Fuoco(controllo))
    throw Fallito(Nome_Controllo(controllo) + " con la tastiera",
                  fuoco ? Nome_Controllo({fuoco, nullptr}) : "nessuno");
}

// Compared without ".exe", which the programs don't have on every system.
std::string Senza_Exe(const std::string& comando) {
  const auto spazio = comando.find(' ');
  const std::string nome = comando.substr(0, spazio);
  const std::string resto = spazio == std::string::npos ? "" : comando.substr(spazio);
  return (Uguali(Destra(nome, 4), ".exe") ? nome.substr(0, nome.size() - 4) : nome) + resto;
}
void Programma_Avviato(Scena& scena, const Argomenti& a) {
  const std::string& trovato = scena.macchina.programma;
  if (Senza_Exe(trovato) != Senza_Exe(a[0].testo))
    throw Fallito("il programma " + Citato(a[0].testo), trovato.empty() ? "nessuno" : Citato(trovato));
}

void Foto(Scena& scena, const Argomenti& a) {
  Esigi_Acceso(scena);
  Foto_Finestra(scena, a[0].testo);
}
void Foto_Della_Carta(Scena& scena, const Argomenti& a) {
  Esigi_Acceso(scena);
  Foto_Carta(scena, a[0].testo);
}

template <void (*passo)(Scena&, const Argomenti&)>
Esito_Passo Intero(Scena& scena, const Argomenti& argomenti) {
  passo(scena, argomenti);
  return Esito_Passo::Fatto;
}

template <void (*passo)(Scena&, const Argomenti&)>
Esito_Passo Nella_Ditta(Scena& scena, const Argomenti& argomenti) {
  Ditta_Pronta(scena);
  passo(scena, argomenti);
  return Esito_Passo::Fatto;
}

using enum Genere_Passo;

constexpr Mossa mosse[] = {
    {"ditta <accanto>", Preparazione, Intero<Ditta>},
    {"oggi <data>", Preparazione, Intero<Oggi>},
    {"separatore <segno>", Preparazione, Intero<Separatore>},
    {"avvia", Gesto, Intero<Avvia>},
    {"esci", Gesto, Esci, true},
    {"finestra <nome>", Controllo, Intero<Finestra_Si_Chiama>},
    {"scrivi <testo>", Gesto, Intero<Scrivi_Testo>},
    {"tasto <tasto>", Gesto, Intero<Tasto_Premuto>},
    {"esc dopo <numero>", Preparazione, Intero<Esc_Dopo>},
    {"clic <controllo>", Gesto, Intero<Clic_Sinistro>},
    {"clic-destro <controllo>", Gesto, Intero<Clic_Destro>},
    {"doppio <controllo>", Gesto, Intero<Doppio>},
    {"fuoco <controllo>", Gesto, Intero<Fuoco>},
    {"metti <controllo> <testo>", Gesto, Intero<Metti_Testo>},
    {"scegli <controllo> <numero>", Gesto, Intero<Scegli_Numero>},
    {"scegli <controllo> <testo>", Gesto, Intero<Scegli_Testo>},
    {"menu <voci>", Gesto, Intero<Menu>},
    {"rispondi OK", Preparazione, Intero<Rispondi_OK>},
    {"rispondi Annulla", Preparazione, Intero<Rispondi_Annulla>},
    {"rispondi <testo>", Preparazione, Intero<Rispondi>},
    {"messaggio contiene <testo>", Controllo, Intero<Messaggio_Contiene>},
    {"messaggio <testo>", Controllo, Intero<Messaggio_Uguale>},
    {"domanda <testo>", Controllo, Intero<Domanda_Fatta>},
    {"nessun-messaggio", Controllo, Intero<Nessun_Messaggio>},
    {"vale <controllo> <testo>", Controllo, Intero<Vale>},
    {"contiene <controllo> <testo>", Controllo, Intero<Contiene_Testo>},
    {"righe <controllo> <numero>", Controllo, Intero<Righe_Della_Lista>},
    {"attivo <controllo>", Controllo, Intero<E_Attivo>},
    {"inattivo <controllo>", Controllo, Intero<E_Inattivo>},
    {"visibile <controllo>", Controllo, Intero<E_Visibile>},
    {"nascosto <controllo>", Controllo, Intero<E_Nascosto>},
    {"ha-fuoco <controllo>", Controllo, Intero<Col_Fuoco>},
    {"segnato <controllo>", Controllo, Intero<E_Segnato>},
    {"non-segnato <controllo>", Controllo, Intero<E_Non_Segnato>},
    {"elenco <percorso> <testi>", Controllo, Nella_Ditta<Elenco_Nomi>},
    {"file <percorso> = <accanto>", Controllo, Nella_Ditta<File_Uguale>},
    {"file <percorso> contiene <testo>", Controllo, Nella_Ditta<File_Contiene>},
    {"file <percorso> manca", Controllo, Nella_Ditta<File_Manca>},
    {"file <percorso> righe <numero>", Controllo, Nella_Ditta<File_Righe>},
    {"pagine = <accanto>", Controllo, Intero<Pagine_Uguali>},
    {"pagine contiene <testo>", Controllo, Intero<Pagine_Contengono>},
    {"pagine numero <numero>", Controllo, Intero<Pagine_Numero>},
    {"copia <accanto> <percorso>", Preparazione, Nella_Ditta<Copia>},
    {"cancella <percorso>", Preparazione, Nella_Ditta<Cancella>},
    {"disco protetto", Preparazione, Nella_Ditta<Disco_Protetto>},
    {"guasto fine", Preparazione, Intero<Guasto_Fine>},
    {"guasto <percorso>", Preparazione, Nella_Ditta<Guasto_A>},
    {"stampante nessuna", Preparazione, Intero<Stampante_Nessuna>},
    {"stampante <testo> verticale", Preparazione, Intero<Stampante_Verticale>},
    {"stampante <testo> orizzontale", Preparazione, Intero<Stampante_Orizzontale>},
    {"appunti <testo>", Preparazione, Intero<Appunti>},
    {"volume <testo> <testo> <cartella>", Preparazione, Intero<Volume_Montato>},
    {"programma <testo>", Controllo, Intero<Programma_Avviato>},
    {"foto <nome>", Controllo, Intero<Foto>},
    {"foto-carta <nome>", Controllo, Intero<Foto_Della_Carta>},
    {"titolo contiene <testo>", Controllo, Intero<Titolo_Contiene>},
    {"titolo <testo>", Controllo, Intero<Titolo_Uguale>},
};

constexpr auto forme = [] {
  std::array<Forma, std::size(mosse)> esito;
  for (std::size_t i = 0; i < esito.size(); ++i) esito[i] = mosse[i].forma;
  return esito;
}();

}  // namespace

std::span<const Mossa> Mosse() { return mosse; }
std::span<const Forma> Forme() { return forme; }

}  // namespace giornata
