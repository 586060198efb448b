// What is left when the management database is damaged: its last good copy, beside it as PATH.copy. A copy is
// kept after every change and at every start that finds the database in order.
#pragma once

#include <string>

namespace Velm {

class Database;

// Replaces the copy when the settings are there. A copy that cannot be kept is said on standard error: the
// change that it is of is done.
void TryToKeepCopy(Database& database, const std::string& path) noexcept;

// For the start, before anything else uses the database: looks through all of it. When it is damaged it is
// put aside as PATH.damaged, in its place comes the copy or, without a good one, what a new appliance has;
// standard error and the audit say so. Throws ServiceError when the database, in order or not, cannot be
// used: it is of a newer program, say, or the disk is full.
void BringIntoOrder(const std::string& path);

// The operation of the row in the audit that says that the settings were damaged; its values say what the
// settings are now.
extern const char* const RestorationInTheAudit;

}  // namespace Velm
