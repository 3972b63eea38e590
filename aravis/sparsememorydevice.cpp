#include "arvglib.h"

#include "sparsememorydevice.h"

#include <cstring>
#include <map>
#include <set>

namespace {

struct SparseMemory
{
    QByteArray xml;
    std::map<guint64, guint8> bytes;
    ArvGc* genicam = nullptr;
    bool unplugged = false;
    std::set<guint64> refused;
};

struct ZvcSparseDevice
{
    ArvDevice parent_instance;
    SparseMemory* memory;
};

struct ZvcSparseDeviceClass
{
    ArvDeviceClass parent_class;
};

GType zvc_sparse_device_get_type();

#define ZVC_SPARSE_DEVICE(object) (G_TYPE_CHECK_INSTANCE_CAST((object), zvc_sparse_device_get_type(), ZvcSparseDevice))

G_DEFINE_TYPE(ZvcSparseDevice, zvc_sparse_device, ARV_TYPE_DEVICE)

void zvc_sparse_device_init(ZvcSparseDevice* self)
{
    self->memory = new SparseMemory;
}

void zvc_sparse_device_finalize(GObject* object)
{
    ZvcSparseDevice* self = ZVC_SPARSE_DEVICE(object);
    if (self->memory->genicam)
        g_object_unref(self->memory->genicam);
    delete self->memory;
    self->memory = nullptr;
    G_OBJECT_CLASS(zvc_sparse_device_parent_class)->finalize(object);
}

const char* sparseGetGenicamXml(ArvDevice* device, size_t* size)
{
    const QByteArray& xml = ZVC_SPARSE_DEVICE(device)->memory->xml;
    *size = size_t(xml.size());
    return xml.constData();
}

ArvGc* sparseGetGenicam(ArvDevice* device)
{
    SparseMemory* memory = ZVC_SPARSE_DEVICE(device)->memory;
    if (!memory->genicam)
        memory->genicam = arv_gc_new(device, memory->xml.constData(), size_t(memory->xml.size()));
    return memory->genicam;
}

bool failWhenUnplugged(ArvDevice* device, guint64 address, guint32 size, GError** error)
{
    const SparseMemory* memory = ZVC_SPARSE_DEVICE(device)->memory;
    if (memory->unplugged) {
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONNECTED, "device unplugged");
        return true;
    }
    const auto refused = memory->refused.lower_bound(address);
    if (refused != memory->refused.end() && *refused < address + size) {
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS,
            "invalid address 0x%" G_GINT64_MODIFIER "x", *refused);
        return true;
    }
    return false;
}

gboolean sparseReadMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    if (failWhenUnplugged(device, address, size, error))
        return FALSE;
    const auto& bytes = ZVC_SPARSE_DEVICE(device)->memory->bytes;
    auto* out = static_cast<guint8*>(buffer);
    for (guint32 i = 0; i < size; ++i) {
        const auto found = bytes.find(address + i);
        out[i] = found == bytes.end() ? 0 : found->second;
    }
    return TRUE;
}

gboolean sparseWriteMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    if (failWhenUnplugged(device, address, size, error))
        return FALSE;
    auto& bytes = ZVC_SPARSE_DEVICE(device)->memory->bytes;
    const auto* in = static_cast<const guint8*>(buffer);
    for (guint32 i = 0; i < size; ++i)
        bytes[address + i] = in[i];
    return TRUE;
}

// Registers as GigE Vision has them: 32 bits, big-endian in memory.
gboolean sparseReadRegister(ArvDevice* device, guint64 address, guint32* value, GError** error)
{
    guint32 raw = 0;
    if (!sparseReadMemory(device, address, sizeof raw, &raw, error))
        return FALSE;
    *value = GUINT32_FROM_BE(raw);
    return TRUE;
}

gboolean sparseWriteRegister(ArvDevice* device, guint64 address, guint32 value, GError** error)
{
    guint32 raw = GUINT32_TO_BE(value);
    return sparseWriteMemory(device, address, sizeof raw, &raw, error);
}

void zvc_sparse_device_class_init(ZvcSparseDeviceClass* klass)
{
    G_OBJECT_CLASS(klass)->finalize = zvc_sparse_device_finalize;
    ArvDeviceClass* device = ARV_DEVICE_CLASS(klass);
    device->get_genicam_xml = sparseGetGenicamXml;
    device->get_genicam = sparseGetGenicam;
    device->read_memory = sparseReadMemory;
    device->write_memory = sparseWriteMemory;
    device->read_register = sparseReadRegister;
    device->write_register = sparseWriteRegister;
}

} // namespace

namespace Aravis {

_ArvDevice* createSparseMemoryDevice(const QByteArray& genicamXml)
{
    auto* device = static_cast<ZvcSparseDevice*>(g_object_new(zvc_sparse_device_get_type(), nullptr));
    device->memory->xml = genicamXml;
    return ARV_DEVICE(device);
}

} // namespace Aravis

void Aravis::setSparseMemoryDeviceUnplugged(_ArvDevice* device, bool unplugged)
{
    if (G_TYPE_CHECK_INSTANCE_TYPE(device, zvc_sparse_device_get_type()))
        ZVC_SPARSE_DEVICE(device)->memory->unplugged = unplugged;
}

void Aravis::refuseSparseMemoryAddress(_ArvDevice* device, quint64 address)
{
    if (G_TYPE_CHECK_INSTANCE_TYPE(device, zvc_sparse_device_get_type()))
        ZVC_SPARSE_DEVICE(device)->memory->refused.insert(address);
}
