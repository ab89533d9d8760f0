#pragma once

#include "core/controlli.h"
#include "core/programma.h"
#include "printing/dispositivo.h"

// The screen `frmStampaFCPB`: the picture of a map or a window on a printer of the operator's choice, at a
// scale, with a preview of where it falls on the sheet.
struct FrmStampaFCPB {
  Testo titolo;
  CampoTesto txtNCopies;   // copies
  CampoTesto txtScala;     // per cent; taken with cmdScalaOK
  Elenco cboPrinterNames;  // "PDF" is always among them
  Scritta Caption_NCopies, Caption_Scala, Caption_Stampante;
  Scritta fraFoglio;           // " Foglio: A4,  Portrait"
  Scritta Altezza, Larghezza;  // of the sheet
  Scritta lblFuoriFoglio, lblStampaInCorso;
  Bottone cmdScalaOK, cmdProprieta, cmdStampa, cmdChiudi;

  Testo nome;  // of what is printed
  Immagine immagine;
  double larghezza = 0, altezza = 0;  // of the picture at 100 per cent, millimetres
  double scala = 100;                 // per cent, in force
  Carta foglio;                       // of the printer in use
  Testo stampante_prima;              // in use when the screen opened, or chosen in the properties since
  int orientamento_prima = 0;
  bool chiusa = false;  // the window goes
};

// Millimetres from the corner of the printable area.
struct Posto_Immagine {
  double x = 0, y = 0, larghezza = 0, altezza = 0;
};

// Opens the screen for a picture of that size on paper. False: refused and told, before any printer is
// touched.
bool StampaFCPB(const Programma& programma, FrmStampaFCPB& schermo, Vista nome, Immagine immagine,
                double larghezza, double altezza);
// The picture at the scale in force, in the middle of the sheet.
Posto_Immagine Posto_Sul_Foglio(const FrmStampaFCPB& schermo);
// cmdScalaOK, and Enter: takes the scale, and asks where the picture would leave the sheet. A scale that is
// no number above 0 is told, and the one in force comes back.
void ConfermaScala(const Programma& programma, FrmStampaFCPB& schermo);
void CambiaStampante(const Programma& programma, FrmStampaFCPB& schermo);  // another entry of cboPrinterNames
// After cmdProprieta, where printer and orientation may have been changed for good.
void RiprendiDaProprieta(const Programma& programma, FrmStampaFCPB& schermo);
void Print_FCPB(const Programma& programma, FrmStampaFCPB& schermo);
void ApplicaEChiudi(const Programma& programma, FrmStampaFCPB& schermo);  // cmdChiudi
// Closed without cmdChiudi: the printer chosen for the picture doesn't stay that of the program.
void LasciaStampante(const Programma& programma, FrmStampaFCPB& schermo);
