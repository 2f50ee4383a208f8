#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"

#include <QString>

#include <vector>

namespace orvinel {

// What is wrong with the data below a program folder: lines that the program passes over and lines that point
// nowhere, so that an author sees at a glance what a player would miss.
// Something that is wrong; a warning: that works but looks bad or is probably not meant.
struct Finding : Complaint {
    bool warning = false;
};

struct WorldFindings {
    // By file and line. Files are given below the folder ("Data/Language.txt"); line 0 concerns a whole file.
    std::vector<Finding> findings;
    // A file is there and could not be read (it is among the findings), or there is nothing to check: neither
    // a language file nor a campaign folder.
    bool unreadable = false;

    // Of what was read, for the summary.
    struct Counts {
        int campaigns = 0;
        int regions = 0;
        int zones = 0;
        int skills = 0;
        int bosses = 0;
        int greens = 0;
        int collectors = 0;
        int chests = 0;
        int pets = 0;
        int characters = 0;
        int notes = 0;
        int errors = 0; // findings that are no warnings
    } counts;
};

// `folder` ends in '/'. Changes nothing.
WorldFindings checkWorld(Disk& disk, const QString& folder);

// "file:line: field: reason", with "warning: " before the field of a warning.
QString findingLine(const Finding& finding);
// An array of objects with file, line, field, severity ("error" or "warning") and reason.
QString findingsJson(const WorldFindings& result);
// One line per kind of thing that was read, one per file with findings, and their total.
QString summaryText(const WorldFindings& result);

} // namespace orvinel
