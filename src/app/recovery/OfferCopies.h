// The question at the start about pages that an earlier run did not save.
#pragma once

class MainFrame;
class Recovery;

/// Asks once for all copies that earlier runs left: Yes opens each as a changed document under its old path,
/// or without one, and touches no file of the user's; No removes them. A copy that can't be read stays, and
/// the status bar tells where it lies. Nothing happens with the setting Recovery off.
void OfferCopies(MainFrame& frame, Recovery& recovery);
