// What most tests of files and of the store read, compiled once.

#include "headers/Plain.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
