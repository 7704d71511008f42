// What became of a document that was to be saved.
#pragma once

enum class SaveResult {
    Saved,
    Failed,  ///< the file stands as it was
    Refused, ///< others changed the file, or it can't be kept whole: it is left as it is, and so is all else
    Cancelled, ///< no file was chosen, or there was nothing to save
};
