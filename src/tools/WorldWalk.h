#pragma once

#include "app/ProgramState.h"
#include "base/Complaints.h"
#include "base/TextFile.h"

#include <set>
#include <utility>
#include <vector>

namespace orvinel {

// The complaints of the loaders, and of the rules that come after them.
class ComplaintList : public Complaints {
  public:
    void add(const Complaint& complaint) override {
        lines_.insert({complaint.file, complaint.line});
        all_.push_back(complaint);
    }
    bool has(const QString& file, int line) const { return lines_.contains({file, line}); }
    const std::vector<Complaint>& all() const { return all_; }

  private:
    std::vector<Complaint> all_;
    std::set<std::pair<QString, int>> lines_;
};

// Where a data file says something.
struct Line {
    QString file;
    int number = 0;
};

// A thing of a table together with the line that put it there.
struct PlacedLine {
    enum class Kind { Boss, Collector, Chest, Pet };
    Line line;
    Kind kind = Kind::Boss;
    QString name;
    int id = 0; // the skill's, collector's, chest's or pet's; 0 of a boss without a skill
    const MapLocation* at = nullptr; // in the state's tables
};

// Walks the lines of `path` that the loaders took in, comments and empty lines aside. `skipped` holds what
// the loaders complained of.
template <typename Visit>
void forEachLine(const Disk& disk, const QString& path, const ComplaintList& skipped, Visit visit) {
    TextFile file(disk, path);
    while (file.nextRecord())
        if (!file.line().trimmed().isEmpty() && !skipped.has(path, file.lineNumber()) && file.hasFields(1))
            visit(file, Line{path, file.lineNumber()});
}

// The loaders keep no line numbers: this goes through their files once more, in their order. `state` is what
// they made of the files and outlives the result.
std::vector<PlacedLine> placedLines(const ProgramState& state, const Disk& disk,
                                    const ComplaintList& skipped);

} // namespace orvinel
