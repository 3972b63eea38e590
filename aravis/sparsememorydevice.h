#pragma once

#include <QByteArray>
#include <QtGlobal>

struct _ArvDevice;

namespace Aravis {

/*!
 * An Aravis device of our own that serves a GenICam document from memory and
 * keeps its registers in a sparse map: every address of the 64-bit space can
 * be read (unwritten bytes are 0) and written. It lets any vendor-style
 * document be loaded and walked through Aravis without a camera, whatever
 * addresses it uses. Returns a new reference; release it with g_object_unref.
 */
_ArvDevice* createSparseMemoryDevice(const QByteArray& genicamXml);

/*!
 * Makes every read and write of a device made by createSparseMemoryDevice
 * fail as an unplugged camera's would (Aravis's "not connected" error), or
 * work again. Does nothing to any other device.
 */
void setSparseMemoryDeviceUnplugged(_ArvDevice* device, bool unplugged);

/*!
 * Makes every read and write that touches the address fail with Aravis's
 * "invalid address" protocol error, as a camera answers for a register it
 * doesn't have; the device stays connected.
 */
void refuseSparseMemoryAddress(_ArvDevice* device, quint64 address);

} // namespace Aravis
