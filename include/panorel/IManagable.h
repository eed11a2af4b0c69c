// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/PanorelExport.h>

#include <QList>
#include <QString>

class QMainWindow;

namespace Panorel {

/** A main window and the id under which its layout is kept. Copyable; owns nothing. */
struct ManagedWindow
{
    /** The DescriptorId. It names the window in every stored layout, so keep it stable between
        runs. An empty id means that the window is not managed; then it is never used. */
    QString descriptorId;
    /** The window to capture from and to restore; not owned. A null window is passed over. */
    QMainWindow* window = nullptr;
};

/**
 * Implemented by the application's objects that own main windows, and registered with
 * Manager::registerManagable(). The Manager never deletes an IManagable, which must outlive it or
 * at least its last capture and restore. GUI thread only.
 */
class PANOREL_EXPORT IManagable
{
public:
    /** Constructs the interface. */
    IManagable() = default;
    /** Nothing is unregistered: a Manager must not capture or restore after this. */
    virtual ~IManagable() = 0;

    /**
     * The windows to manage, each with its DescriptorId. Asked on the GUI thread, again for every
     * capture and every restore, so the answer may change between calls. Every window in the list
     * must be alive when it is returned; one that another owner destroys after that is passed over,
     * if it is not in the middle of being captured or restored. Where two windows share an id, the
     * later one's layout is the one that is kept, and both get it back.
     */
    virtual QList<ManagedWindow> managedWindows() = 0;

protected:
    /** For an implementation that is copied. The copy is another owner, not yet registered. */
    IManagable(const IManagable&) = default;
    /** Copies nothing, because there are no members. Registrations stay as they are. */
    IManagable& operator=(const IManagable&) = default;
};

} // namespace Panorel
