#pragma once

namespace tarnwick {

/// From here on a RowList tells people who listen its rows, each as an entry of a list that can be pressed.
void TeachRowLists();

class RowList;

/// To be called at the end of a list: what was told of it must not be taken for another list in its place.
void ForgetRows(RowList& list);

}  // namespace tarnwick
