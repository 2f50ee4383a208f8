#pragma once

#include <QString>

namespace orvinel {

// Why a line of a data file was not stored.
struct Complaint {
    QString file;
    int line = 0; // from 1; 0 concerns the whole file
    QString field;
    QString reason;

    bool operator==(const Complaint&) const = default;
};

// Where loaders report what they skip. The program passes none and stays silent; the checker prints them.
class Complaints {
  public:
    virtual ~Complaints() = default;
    virtual void add(const Complaint& complaint) = 0;
};

} // namespace orvinel
