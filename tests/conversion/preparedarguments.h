#pragma once

#include "commandbuilder.h"
#include "task.h"

// The argument list as the queue makes it: the task prepared first.
inline QStringList preparedArguments(Task &task, const QString &commonRoot)
{
    return CommandBuilder::prepare(task, commonRoot) ? CommandBuilder::build(task) : QStringList();
}
