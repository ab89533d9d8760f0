#pragma once

#include <QCache>
#include <QFont>
#include <QStaticText>
#include <QStyledItemDelegate>

// Paints a list's lines as the desktop's style does, and keeps the shaped texts of those that were seen last:
// while the operator keys, a list shows the same lines again with each row, and measuring and shaping their
// letters anew was the dearest part of the key that adds a row. Lines are text alone: no icons, no boxes.
class RigaElenco : public QStyledItemDelegate {
 public:
  explicit RigaElenco(QObject* padre);
  void paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
             const QModelIndex& indice) const override;

 private:
  const QStaticText& testo(const QString& riga, const QFont& carattere) const;
  mutable QCache<QString, QStaticText> testi_;  // of one font: emptied when the list gets another
  mutable QFont carattere_;
};
