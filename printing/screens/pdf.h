#pragma once

#include <string>
#include <string_view>
#include <vector>

// The frame of a PDF file: numbered objects, and at the end where each of them stands.
class File_Pdf {
 public:
  File_Pdf();
  int Prenota();  // the number of an object that is written later
  void Oggetto(int numero, std::string_view contenuto);
  int Oggetto(std::string_view contenuto);
  int Flusso(std::string_view voci, std::string_view compresso);  // of bytes that went through Comprimi_Pdf
  std::string Chiudi(int catalogo, int notizie);                  // the whole file

 private:
  std::string byte_;
  std::vector<std::size_t> posti_;  // of each object, from number 1
};

std::string Numero_Pdf(double numero);           // at most three decimals
std::string Rimando_Pdf(int oggetto);            // "12 0 R"
std::string Stringa_Pdf(std::string_view byte);  // between parentheses
std::string Comprimi_Pdf(std::string_view byte);
