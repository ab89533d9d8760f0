#include "transfers/screens/xdisk_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "platform/aspetto.h"
#include "transfers/screens/senza_proposta.h"

XdiskFinestra::XdiskFinestra(const Programma& programma, ModoCopia modo, const Percorso& cartella_propria,
                             QWidget* padre)
    : FinestraDavanti(QStringLiteral("xdisk"), padre, Qt::Window), programma_(programma) {
  Apri_Xdisk(programma_, xdisk_, modo, cartella_propria);
  intitola(xdisk_.titolo);
  si_chiude(xdisk_.chiusa, [this] { Annulla_Drive(xdisk_); });
  setFont(Carattere(punti_normali));

  auto* barra = new QMenuBar;
  fa_voce(barra, QStringLiteral("MenuAggiorna"), xdisk_.MenuAggiorna,
          [this] { Aggiorna_Dischi(programma_, xdisk_); });

  auto* titolo = fa_scritta(QStringLiteral("Titolo"), xdisk_.Titolo);
  titolo->setFont(Carattere(punti_grandi, true));
  titolo->setWordWrap(true);

  auto* lista = new Senza_Proposta<QListView>;
  lista->setFont(Carattere(punti_grandi));
  lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista->setAccessibleName(QStringLiteral("Dischi"));
  lista->setMinimumSize(lista->fontMetrics().averageCharWidth() * 60, lista->fontMetrics().lineSpacing() * 6);
  legame.scelta(lista, [this] { Conferma_Drive(xdisk_); });
  legame.lega(lista, QStringLiteral("List1"), xdisk_.List1, [this] { Cambia_Drive(xdisk_); });

  auto* comandi = new QHBoxLayout;
  comandi->addStretch();
  comandi->addWidget(
      fa_bottone(QStringLiteral("Command1"), xdisk_.Command1, [this] { Conferma_Drive(xdisk_); }));
  comandi->addWidget(
      fa_bottone(QStringLiteral("Command2"), xdisk_.Command2, [this] { Annulla_Drive(xdisk_); }));

  auto* corpo = new QVBoxLayout;
  corpo->setContentsMargins(18, 14, 18, 14);
  corpo->setSpacing(14);
  corpo->addWidget(titolo);
  corpo->addWidget(lista, 1);
  corpo->addLayout(comandi);
  disponi(barra, corpo);
  mostra();
  lista->setFocus(Qt::OtherFocusReason);
}

Scelta_Drive Chiedi_Drive(const Programma& programma, QWidget* padre) {
  return [&programma, padre](ModoCopia modo, const Percorso& cartella_propria) {
    XdiskFinestra finestra(programma, modo, cartella_propria, padre);
    finestra.esegui();
    return finestra.scelto();
  };
}
