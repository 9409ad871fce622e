#pragma once

#include <QString>

#include <string>

/// A path as Windows' own calls take it: one of more than some 250 characters only in a form of its own, unless the
/// machine is set up for more. It may begin with a drive or, for a share, with two slashes.
std::wstring longPath(const QString& path);
