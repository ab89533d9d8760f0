#include "tests/runner/foto.h"

#include <QPixmap>
#include <QStringList>

#include "printing/screens/stampante_qt.h"
#include "tests/runner/controlli.h"
#include "tests/runner/scena.h"

namespace giornata {

namespace fs = std::filesystem;

namespace {

class Solo_PDF : public Stampante_Qt {
 public:
  using Stampante_Qt::Stampante_Qt;

 protected:
  QStringList Stampanti_Di_Sistema() const override { return {}; }
};

void Esigi_Nome(const std::string& nome) {
  if (nome.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") != std::string::npos)
    throw Fallito("un nome di foto con lettere minuscole, cifre e _", nome);
}

}  // namespace

Album::Album(Percorso cartella) : cartella_(std::move(cartella)) {}
Album::~Album() = default;

Printer& Album::carta(const Percorso& ditta) {
  carta_ = std::make_unique<Solo_PDF>(ditta);
  return *carta_;
}

void Album::prendi_carta(const std::string& nome) {
  const Percorso pdf = carta_ ? carta_->Ultimo_PDF() : Percorso();
  std::error_code errore;
  if (pdf.empty() || !fs::exists(pdf)) throw Fallito("un documento stampato", "nessuno");
  fs::copy_file(pdf, cartella_ / (nome + ".pdf"), fs::copy_options::overwrite_existing, errore);
  if (errore) throw Fallito("la foto " + nome, errore.message());
  fs::remove(pdf);
}

void Foto_Finestra(Scena& scena, const std::string& nome) {
  Esigi_Nome(nome);
  const QWidget* schermo = Schermo_Attivo();
  if (!schermo) throw Fallito("una finestra", "nessuna");
  if (!scena.album) return;
  const QString file = QString::fromStdString((scena.album->cartella() / (nome + ".png")).string());
  if (!schermo->window()->grab().save(file)) throw Fallito("la foto " + nome, "non si scrive");
}

void Foto_Carta(Scena& scena, const std::string& nome) {
  Esigi_Nome(nome);
  if (scena.album) return scena.album->prendi_carta(nome);
  if (scena.macchina.pagine.pagine == 0) throw Fallito("un documento stampato", "nessuno");
  scena.pagine_viste = true;
}

}  // namespace giornata
