#include "core/numeri.h"
#include "documents/numeri.h"
#include "fuzz/ingresso.h"
#include "invoices/rapporto.h"
#include "start/ditte.h"

// Names of invoice files, numbers of invoices, notes and transport documents, names of firms. No text of a
// field leads to another folder.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  const char separatore = ingresso.Separatore();
  ditta.Riparti(programma, separatore);

  Documento_Fattura documento;
  documento.tipo = ingresso.Scelta(2) == 0 ? TipoFattura::Fattura : TipoFattura::Nota;
  const int pagine = static_cast<int>(ingresso.Scelta(256)), pagina = static_cast<int>(ingresso.Scelta(256));
  documento.Numero = ingresso.Pezzo();
  documento.cliente.Codice = ingresso.Pezzo();
  documento.Data_AAAAMMGG = ingresso.Pezzo();
  programma.preferenze.Codice_Commissionario = ingresso.Pezzo();
  documento.importi.TotaleDocumento = Valore(ingresso.Pezzo(), separatore);
  const Testo nome = NomeDocumento(programma, documento);
  Esigi(nome.find_first_of("/\\") == Testo::npos, "il nome di un documento e' un nome");
  Esigi(Unisci_Percorso(ditta.cartella, nome).parent_path() == ditta.cartella,
        "un documento resta nella cartella");
  Esigi(PagineDelNome(NomePagina(nome, 1, 1)) == 1, "le pagine si rileggono dal nome");
  LeggiNome(NomePagina(nome, pagine, pagina));

  const Testo testo(ingresso.Resto());
  LeggiNome(testo);
  PagineDelNome(testo);
  NomePagina(testo, pagine, pagina);
  ValoreNumero(testo, separatore);
  const Testo fattura = CorreggiNumeroFattura(testo, separatore),
              nota = CorreggiNumeroNota(testo, separatore);
  Esigi(CorreggiNumeroFattura(fattura, separatore) == fattura, "un numero in forma resta");
  Esigi(CorreggiNumeroNota(nota, separatore) == nota, "un numero di nota in forma resta");

  NumeroDoc(testo);
  const MarchiDoc marchi = LeggiMarchi(testo);
  Esigi(LeggiMarchi(ConMarchio(testo, TipoDoc::Sanitario)).ds, "un documento stampato e' segnato");
  Esigi(LeggiMarchi(TestoNumero(7, marchi)) == marchi, "i marchi si rileggono");
  ListaDocumenti lista;
  for (const Vista riga : Righe(testo)) {
    Vista resto = riga;
    const Vista cliente = Prossimo_Campo(resto);
    lista.push_back({Testo(cliente), Testo(resto)});
    if (lista.size() == 6) break;
  }
  const std::size_t quante = lista.size();
  RiparaNumeri(lista, 1);
  NumeraMancanti(lista);
  OrdinaPerNumero(lista);
  Esigi(lista.size() == quante, "nessun documento si perde");

  if (const auto nome_ditta = Nome_Di_Ditta(testo))
    Esigi(Unisci_Percorso(ditta.cartella, *nome_ditta).lexically_normal().parent_path() == ditta.cartella,
          "una ditta sta nella sua cartella");
  return 0;
}
