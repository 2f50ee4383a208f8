#pragma once

#include <QString>

namespace orvinel {

// The right to be the only running program of one folder. It lasts as long as the object and goes with the
// process, however that ends; nothing is written to the folder.
class SingleInstance {
  public:
    // `folder`: the program's folder.
    explicit SingleInstance(const QString& folder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // False only when another program surely has the right; True also where the folder cannot be locked.
    bool first() const { return first_; }

  private:
    bool first_ = true;
#ifdef Q_OS_WIN
    void* mutex_ = nullptr;
#else
    int folder_ = -1;
#endif
};

} // namespace orvinel
