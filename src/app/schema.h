#pragma once

#include <QString>

// The current schema of a Brisko database file.
namespace Schema {

inline constexpr char16_t kCurrentVersion[] = u"4.2.5";

// Makes a new database file at `path` (its folder too) at the current
// version: every table and index, the two receipt states, the five payment
// methods and one company row a new shop can start from.
void createDatabase(const QString &path);

// Makes whichever of the indexes the lists rely on the open file lacks.
void createIndexes();

// The database a new installation starts from: createDatabase plus a
// numbering row for the current year, so that the first start is not greeted
// by the year-change question.
void createDeliveredDatabase(const QString &path);

// Makes the empty file at `path` the database a new installation starts from.
void setUpEmptyFile(const QString &path);

} // namespace Schema
