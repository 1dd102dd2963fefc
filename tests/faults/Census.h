#pragma once

#include <QByteArray>
#include <QMap>

#include <iosfwd>

namespace testing_support {

/// What of a call could stay behind: objects of this thread by class, and sockets of the process.
struct Census {
    QMap<QByteArray, int> objects;
    int sockets = 0;

    static Census Now();

    /// Whether there is no more than at that time.
    bool IsWithin(const Census& before) const;
};

std::ostream& operator<<(std::ostream& stream, const Census& census);

/// From now on the objects of all threads are counted.
void CountObjects();

}  // namespace testing_support
