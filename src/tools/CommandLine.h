#pragma once

#include <QString>
#include <QStringList>

namespace orvinel {

// How the tools end.
enum ExitCode { exitGood = 0, exitFindings = 1, exitUnusable = 2 };

// The words after the program's name.
QStringList arguments(int argc, char** argv);

// The program folder that the player named, absolute and with '/' at its end; empty when there is no such
// folder.
QString programFolder(const QString& argument);

// As UTF-8.
void print(const QString& text);
void printError(const QString& text);

} // namespace orvinel
