#pragma once

#include <QByteArray>
#include <QMap>

#include <iosfwd>

namespace testing_support {

/// What a call could leak: objects of this thread by class, and sockets of the process.
struct Census {
    QMap<QByteArray, int> objects;
    int sockets = 0;

    static Census Now();

    /// Whether no object or socket was added since @p before.
    bool IsWithin(const Census& before) const;
};

std::ostream& operator<<(std::ostream& stream, const Census& census);

/// Starts counting the objects of all threads.
void CountObjects();

}  // namespace testing_support
