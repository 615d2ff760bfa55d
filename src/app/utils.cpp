#include "utils.h"

#include <QThread>

namespace Utils {

int processorCount()
{
    return QThread::idealThreadCount();
}

} // namespace Utils
