#pragma once

#include "app/ProgramState.h"
#include "base/PlayerFiles.h"

#include <QByteArray>
#include <QString>

#include <map>

namespace orvinel {

// The files of a small world: campaign 3 with one region, 40 skills and 12 chests. By path below the folder.
std::map<QString, QByteArray> faultWorld();

// Somebody who plays the same game every time: the same steps on the same folder write the same bytes.
class Player {
  public:
    // `folder` ends in '/'. Reads what is there.
    Player(Disk& disk, const QString& folder);

    // Does what comes n-th (from 0): characters come, change and go, skills are captured, chests opened,
    // notes written, changed and deleted, options saved. `bulk`: characters in a note's text. True when it
    // was saved.
    bool step(int n, int bulk);

    ProgramState state;

  private:
    int someCharacter(int n) const;
    SaveResult createCharacter(int n);
    SaveResult changeCharacter(int n);
    SaveResult removeCharacter();
    SaveResult capture(int n);
    SaveResult open(int n);
    SaveResult writeNote(int n, int bulk, int index);
    SaveResult dropNote();
    SaveResult saveOptions(int n);

    PlayerFiles files_;
};

// What a start would read from the player's files, as one text: equal texts, equal memory. Numbers that no
// character has do not count.
QString progressOf(const ProgramState& state);

} // namespace orvinel
