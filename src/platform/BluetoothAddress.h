#pragma once

#include <QString>

namespace quillmere {

/// The first device address in a text, as "AA:BB:CC:DD:EE:FF"; empty if there is none. Also finds
/// it in names built from one, such as "bluez_output.aa_bb_cc_dd_ee_ff.1" and a bus path.
QString bluetoothAddressIn(const QString &text);

} // namespace quillmere
