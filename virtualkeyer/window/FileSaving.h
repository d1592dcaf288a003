#pragma once

#include <QByteArray>
#include <QCoreApplication>

class QWidget;

namespace virtualkeyer {

/// Asks for the name of a file and writes it; whoever asked is told when it cannot be written.
struct FileSaving {
    Q_DECLARE_TR_FUNCTIONS(FileSaving)

  public:
    /// `title` stands over the question, `suffix` is added to a name that has none. Blocks while it
    /// asks.
    static void save(QWidget* parent, const QString& title, const QString& suffix,
                     const QByteArray& contents);
};

} // namespace virtualkeyer
