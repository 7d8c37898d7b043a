#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace tarnwick {

/// The bar below a page that finds words on it; hidden until it is asked for.
class HelpFindBar final : public QWidget {
  Q_OBJECT

 public:
  HelpFindBar(QTextBrowser& page, QWidget* parent);

  void Begin();
  void FindNext() { Find(Direction::Down); }
  void FindPrevious() { Find(Direction::Up); }

 private:
  enum class Direction { Down, Up };
  void Find(Direction direction);

  QTextBrowser& page_;
  QLineEdit* words_ = nullptr;
  QLabel* result_ = nullptr;
};

}  // namespace tarnwick
