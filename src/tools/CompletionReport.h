#pragma once

#include <QString>

#include <vector>

namespace orvinel {

struct ProgramState;

// How far a character has come in one part of the world.
struct CompletionRow {
    enum class Part { World, Campaign, Region, Profession };
    QString character;
    Part part = Part::World;
    QString name;     // of the campaign, region or profession; empty for the world
    QString campaign; // of a region
    int captured = 0; // of `skills`
    int skills = 0;
    int opened = 0; // of `chests`
    int chests = 0;

    bool operator==(const CompletionRow&) const = default;
};

// For every named character: the world, then campaigns, regions and professions that have skills or chests. A
// skill counts for the campaign whose list defines it, for its profession, and once for every region where a
// boss carries it.
std::vector<CompletionRow> completionRows(const ProgramState& state);

// For people to read.
QString completionText(const std::vector<CompletionRow>& rows);
// Comma-separated with a heading, CR LF, texts quoted.
QString completionCsv(const std::vector<CompletionRow>& rows);
// A page of its own, without anything from elsewhere.
QString completionHtml(const std::vector<CompletionRow>& rows);

} // namespace orvinel
