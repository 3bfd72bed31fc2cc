#pragma once

#include "output/reportlayout.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;

// A rendered report on the screen: one page at a time, with page buttons,
// zoom, Print and Save as PDF. Escape closes it.
class ReportPreview : public QDialog {
    Q_OBJECT

public:
    explicit ReportPreview(RenderedReport report, QWidget *parent = nullptr);

    int currentPage() const { return m_page; }
    int pageCount() const { return int(m_report.pages.size()); }
    // Shows page `index`, counted from 0.
    void showPage(int index);
    // The page as an image at `zoom` times its printed size on a 96 dpi screen.
    QImage pageImage(int index, double zoom) const;

private:
    QPushButton *addButton(const QString &name, const QString &text);
    void redraw();
    void printReport();
    void saveAsPdf();
    double zoom() const;

    RenderedReport m_report;
    int m_page = 0;
    QScrollArea *m_scroll = nullptr;
    QLabel *m_pageView = nullptr;
    QLabel *m_pageLabel = nullptr;
    QComboBox *m_zoom = nullptr;
    QPushButton *m_previous = nullptr;
    QPushButton *m_next = nullptr;
};
