#pragma once

#include "geometry/FloatGeometry.h"
#include "platform/ChangeKind.h"
#include "platform/DeviceColor.h"

class Sheets;
class UndoManager;

/// What the axis settings need of their document.
class AxesDocument
{
public:
    virtual ~AxesDocument() = default;
    [[nodiscard]] virtual UndoManager &undoManager() = 0;
    /// The message sheets at the document's window.
    [[nodiscard]] virtual Sheets &sheets() = 0;
    virtual void updateChangeCount(ChangeKind kind) = 0;
    /// The anchors have moved on within a step of undo that counts already.
    virtual void anchorsMovedOn() = 0;
    [[nodiscard]] virtual bool isInAxisSettingMode() const = 0;
    /// Shows the axis-setting page, whatever page is shown now.
    virtual void forceAxisSettingMode() = 0;
};

/// What the axis settings need of the picture view.
class AxesImageView
{
public:
    virtual ~AxesImageView() = default;
    /// The size of the picture before it is turned, in picture points; zero without a picture.
    [[nodiscard]] virtual FloatSize imageSize() const = 0;
    /// Counter-clockwise degrees: 0, 90, 180 or 270.
    [[nodiscard]] virtual float imageRotation() const = 0;
    /// View points per picture point.
    [[nodiscard]] virtual float imageScale() const = 0;
    /// The size of the picture as shown, turned and scaled, in view points.
    [[nodiscard]] virtual FloatSize scaledImageSize() const = 0;
    virtual void setNeedsDisplay() = 0;
};

/// The preferences that the axis settings read.
class AxesPrefs
{
public:
    virtual ~AxesPrefs() = default;
    [[nodiscard]] virtual DeviceColor axisColor() const = 0;
    /// The width of lines and outlines, in view points.
    [[nodiscard]] virtual float axisThick() const = 0;
    /// The side of an anchor's square, in view points at every scale.
    [[nodiscard]] virtual float axisAnchorSize() const = 0;
};

/// The facts panel, told that the axes of this document changed.
class AxesInfoPanel
{
public:
    virtual ~AxesInfoPanel() = default;
    virtual void updateAxisInfo() = 0;
};
