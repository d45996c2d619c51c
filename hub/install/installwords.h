#pragma once

#include "installoutcome.h"

#include <QString>

/// An installation in plain words, for whoever shows it to people. Everything is one line.

/// Which request is meant, such as "storing the file of 192.168.0.17 for layout 2".
QString requestWords(const InstallPlace& place);

/// What kept the hub from it, such as "the hub answered 507 Insufficient Storage"; empty without
/// trouble. Whom it befell is not said.
QString troubleWords(const InstallOutcome& outcome);

/// Both together: the reason why a hub is not installed, or what it refused although it is; empty
/// without trouble.
QString reasonWords(const InstallOutcome& outcome);

/// The same of a trouble that is told in other words.
QString reasonWords(const InstallPlace& place, const QString& trouble);

/// How far the transfer is, such as "12 of 40 files stored"; empty before it begins.
QString progressWords(const InstallProgress& progress);
