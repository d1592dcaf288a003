#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QUrl>

/// The operator's guide: its chapters, in the language of the program and in their order, and where
/// in them a text is found. A chapter that the language has not is the English one. It reads all of
/// them when it is made. Main thread only.
class Guide final {
    Q_DECLARE_TR_FUNCTIONS(Guide)
  public:
    struct Chapter {
        /// What others call it by, as "tune", whatever the language.
        QString name;
        /// Markdown, among the program's resources.
        QUrl source;
        QString title;
        /// As it is shown: each position is that of the shown document.
        QString text;
    };

    struct Match {
        qsizetype chapter;
        qsizetype position;
        qsizetype length;
        /// It, and the words around it.
        QString surroundings;
    };

    /// A letter is in every line.
    static constexpr qsizetype mostMatches = 200;

    Guide();

    [[nodiscard]] const QList<Chapter>& chapters() const { return _chapters; }
    /// -1 where there is none of that name.
    [[nodiscard]] qsizetype indexOf(const QString& name) const;
    /// -1 where none has that source.
    [[nodiscard]] qsizetype indexOf(const QUrl& source) const;

    /// The places of a text, in large letters or small, from the first chapter to the last, up to
    /// mostMatches of them; none of an empty one.
    [[nodiscard]] QList<Match> find(const QString& text) const;

  private:
    QList<Chapter> _chapters;
};
