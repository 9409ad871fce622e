#pragma once

/// What a screen reader takes the panel's own widgets for.
namespace ScreenReader {

/// Makes them known to Qt's accessibility: texts as texts, pictures as pictures. More than once does no harm.
void introduceWidgets();

} // namespace ScreenReader
