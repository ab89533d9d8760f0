#pragma once

#include <QString>

#include "core/testo.h"

// Between the firm's texts (Windows-1252) and the toolkit's. Every byte goes over and comes back as itself,
// the five undefined ones included; a character without a place in the code page becomes '?'.

inline QString In_QString(Vista testo) {
  QString esito(static_cast<qsizetype>(testo.size()), Qt::Uninitialized);
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const auto byte = static_cast<unsigned char>(testo[i]);
    const bool alto = byte >= 0x80 && byte <= 0x9F;
    esito[static_cast<qsizetype>(i)] =
        QChar(alto ? testo_interno::alti[byte - 0x80U] : static_cast<char16_t>(byte));
  }
  return esito;
}

inline Testo Da_QString(const QString& testo) {
  Testo esito;
  esito.reserve(static_cast<std::size_t>(testo.size()));
  for (qsizetype i = 0; i < testo.size(); ++i) {
    const QChar c = testo[i];
    if (c.isLowSurrogate() && i > 0 && testo[i - 1].isHighSurrogate()) continue;
    esito += testo_interno::Da_Codice(c.unicode());
  }
  return esito;
}
