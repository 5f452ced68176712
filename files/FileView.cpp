#include "files/FileView.h"

namespace brastel {

namespace {

FileView NoFileView;

}  // namespace

FileView* FileWindows = &NoFileView;

void SetFileView(FileView* view) { FileWindows = view != nullptr ? view : &NoFileView; }

}  // namespace brastel
