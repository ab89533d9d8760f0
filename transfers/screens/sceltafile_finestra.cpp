#include "transfers/screens/sceltafile_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "platform/aspetto.h"
#include "transfers/screens/senza_proposta.h"

namespace {

QListView* Fa_Lista(const QString& nome) {
  auto* lista = new Senza_Proposta<QListView>;
  lista->setFont(Carattere(punti_normali));
  lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista->setAccessibleName(nome);
  lista->setMinimumSize(lista->fontMetrics().averageCharWidth() * 34,
                        lista->fontMetrics().lineSpacing() * 12);
  return lista;
}

}  // namespace

SceltaFileFinestra::SceltaFileFinestra(Programma& programma, Vista nome, QWidget* padre)
    : FinestraDavanti(QStringLiteral("SceltaFile"), padre, Qt::Window), programma_(programma) {
  Apri_SceltaFile(programma_, schermo_, nome);
  intitola(schermo_.titolo);
  si_chiude(schermo_.chiusa, [this] { Annulla_File(schermo_); });
  setFont(Carattere(punti_normali));

  auto* barra = new QMenuBar;
  fa_voce(barra, QStringLiteral("MenuAggiorna"), schermo_.MenuAggiorna,
          [this] { Aggiorna_SceltaFile(programma_, schermo_); });

  auto* dischi = fa_tendina(QStringLiteral("Drive1"), QStringLiteral("Dischi"), schermo_.Drive1,
                            [this] { Cambia_Disco(programma_, schermo_); });
  auto* cartella = fa_scritta(QStringLiteral("Cartella"), schermo_.Cartella);
  cartella->setFont(Carattere(punti_normali, true));
  cartella->setWordWrap(true);

  auto* campo = fa_campo(QStringLiteral("Text1"), schermo_.Text1, schermo_.Caption_Text1);
  campo->setFont(Carattere(punti_grandi));
  legame.invio(campo, [this] { Conferma_File(programma_, schermo_); });
  auto* riga_nome = new QHBoxLayout;
  riga_nome->addWidget(fa_scritta(QStringLiteral("Caption_Text1"), schermo_.Caption_Text1));
  riga_nome->addWidget(campo, 1);

  auto* corpo = new QVBoxLayout;
  corpo->setContentsMargins(18, 14, 18, 14);
  corpo->setSpacing(12);
  corpo->addWidget(dischi);
  corpo->addWidget(cartella);
  corpo->addLayout(fa_liste(), 1);
  corpo->addLayout(riga_nome);
  corpo->addLayout(fa_comandi());
  disponi(barra, corpo);
  mostra();
  campo->setFocus(Qt::OtherFocusReason);
  campo->selectAll();
}

QBoxLayout* SceltaFileFinestra::fa_liste() {
  QListView* cartelle = Fa_Lista(QStringLiteral("Cartelle"));
  legame.scelta(cartelle, [this] { Entra_Cartella(programma_, schermo_); });
  legame.lega(cartelle, QStringLiteral("Dir1"), schermo_.Dir1);
  QListView* file = Fa_Lista(QStringLiteral("File"));
  legame.lega(file, QStringLiteral("File1"), schermo_.File1, [this] { Prendi_Nome(schermo_); });
  auto* liste = new QHBoxLayout;
  liste->setSpacing(12);
  liste->addWidget(cartelle, 1);
  liste->addWidget(file, 1);
  return liste;
}

QBoxLayout* SceltaFileFinestra::fa_comandi() {
  auto* comandi = new QHBoxLayout;
  comandi->addStretch();
  comandi->addWidget(fa_bottone(QStringLiteral("Command1"), schermo_.Command1,
                                [this] { Conferma_File(programma_, schermo_); }));
  comandi->addWidget(
      fa_bottone(QStringLiteral("Command2"), schermo_.Command2, [this] { Annulla_File(schermo_); }));
  return comandi;
}

Scelta_File Chiedi_File(Programma& programma, QWidget* padre, Vista nome) {
  return [&programma, padre, proposto = Testo(nome)] {
    SceltaFileFinestra finestra(programma, proposto, padre);
    finestra.esegui();
    return finestra.scelto();
  };
}
