#include "imageview/PdfPlugin.h"

#include <QPdfDocument>

namespace {

std::optional<PictureProblem> problemOf(QPdfDocument::Error error)
{
    switch (error) {
    case QPdfDocument::Error::None:
        return {};
    case QPdfDocument::Error::IncorrectPassword:
        return PictureProblem::NeedsPassword;
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        return PictureProblem::UnknownProtection;
    case QPdfDocument::Error::FileNotFound:
        return PictureProblem::Missing;
    default:
        return PictureProblem::Damaged;
    }
}

class DocumentPainter final : public PdfPainter
{
public:
    DocumentPainter(const QString &path, const QString &password)
    {
        m_document.setPassword(password);
        m_problem = problemOf(m_document.load(path));
    }

    [[nodiscard]] std::optional<PictureProblem> problem() const override { return m_problem; }
    [[nodiscard]] int pageCount() const override { return m_document.pageCount(); }
    [[nodiscard]] QImage painted(int index, QSize size) override
    {
        return m_document.render(index, size);
    }

private:
    QPdfDocument m_document;
    std::optional<PictureProblem> m_problem;
};

} // namespace

PdfPages PdfPlugin::readPages(const QString &path, const QString &password) const
{
    return PdfPages::read(path, password);
}

std::unique_ptr<PdfPainter> PdfPlugin::open(const QString &path, const QString &password) const
{
    return std::make_unique<DocumentPainter>(path, password);
}
