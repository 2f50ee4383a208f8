#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace orvinel {

// How the tools end.
enum ExitCode { ExitGood = 0, ExitFindings = 1, ExitUnusable = 2 };

// The words after the program's name.
QStringList arguments(int argc, char** argv);

// The program folder that the player named, absolute and with '/' at its end; empty when there is no such
// folder.
QString programFolder(const QString& argument);

// As UTF-8.
void print(const QString& text);
void printError(const QString& text);

// What a tool understands, beside --help and --version.
struct ToolTable {
    QString name;        // "orvinel-report"
    QString description; // a sentence
    struct Word {
        QString name; // "FOLDER"; in brackets: may be left out
        QString description;
    };
    std::vector<Word>
        words; // the first is the program folder; a last one ending in "..." stands for any number
    struct Option {
        QString name;
        QString description;
        QString value{}; // what its value is called; empty: it takes none
    };
    std::vector<Option> options;
};

// The words after a tool's name, understood by its table.
class CommandLine {
  public:
    CommandLine(const ToolTable& table, int argc, char** argv);

    // The tool is to end with this: help or version have been printed, or the words make no sense, which has
    // been said.
    std::optional<int> ended() const { return ended_; }

    // Empty when it was left out.
    QString word(int position) const { return parser_.positionalArguments().value(position); }
    QStringList words() const { return parser_.positionalArguments(); }
    bool has(const QString& option) const { return parser_.isSet(option); }
    QString value(const QString& option) const { return parser_.value(option); }
    QStringList values(const QString& option) const { return parser_.values(option); }

    // "NAME: reason" on the error stream; returns `code`.
    int refuse(const QString& reason, ExitCode code = ExitUnusable) const;
    // The words make no sense together.
    int misunderstood(const QString& reason) const;

  private:
    std::optional<int> understand(const ToolTable& table, const QStringList& words);

    QByteArray name_;
    char* argv_[2];
    int argc_ = 1;
    QCoreApplication application_; // the parser's help asks it for the tool's name
    QCommandLineParser parser_;
    std::optional<int> ended_;
};

// A line on the terminal while something takes longer than a second. Nothing where errors go to a file.
class ProgressLine {
  public:
    ProgressLine();
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    void show(qint64 done, qint64 all);

  private:
    QElapsedTimer clock_;
    qint64 last_ = 0; // milliseconds
    bool terminal_;
    bool shown_ = false;
};

} // namespace orvinel
