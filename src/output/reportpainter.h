#pragma once

#include "output/reportlayout.h"

#include <QByteArray>

class QPagedPaintDevice;
class QPainter;

namespace ReportPainter {

// Draws a laid-out page on the painter's device, the page's corner at the
// device's origin, at the device's own resolution.
void paintPage(QPainter &painter, const ReportPage &page);

// Sets each page's paper on `device` and draws the report on it, a page a sheet.
void paintReport(QPagedPaintDevice &device, const RenderedReport &report);

// The report as a PDF document, with its fonts embedded.
QByteArray toPdf(const RenderedReport &report);

} // namespace ReportPainter
