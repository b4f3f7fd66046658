// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/pictures/picturepage.h"

#include "web/html/escape.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"

namespace stemwright
{

namespace
{

constexpr std::string_view namesHeading = "<B>Individuals in This Picture:</B>";

PreparedTemplate Top(const SiteRun& run, const char* name)
{
    return PreparedTemplate(ReadTemplate(run.application.file(QString::fromLatin1(name))), {"$Title"});
}

PreparedTemplate Bottom(const SiteRun& run, const char* name)
{
    return PreparedTemplate(ReadTemplate(run.application.file(QString::fromLatin1(name))),
                            {"$PicId", "$PictureFilename", "$PictureDate", "$Place", "$PicDescr", "$ModificationDate",
                             "$Title", "$PicWidth", "$PicHeight"});
}

std::string Html(std::string_view text)
{
    std::string html;
    AppendText(html, text);
    return html;
}

/// The description's lines as they were typed.
std::string HtmlLines(std::string_view text)
{
    std::string html;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        AppendText(html, text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        html.append(text.empty() ? "" : "<BR>");
    }
    return html;
}

std::string PixelsOrNothing(int pixels)
{
    return pixels > 0 ? std::to_string(pixels) : std::string();
}

bool HasPlace(const auto& marks)
{
    return std::any_of(marks.begin(), marks.end(), [](const auto& mark) { return mark.place.has_value(); });
}

} // namespace

PicturePageWriter::PicturePageWriter(const SiteRun& run, Connection& connection)
    : m_run(run), m_marks(connection), m_rectangleTop(Top(run, "html/picpagetop_rec.html")),
      m_arrowTop(Top(run, "html/picpagetop_arr.html")), m_bottomNamesLeft(Bottom(run, "html/picpagebot_nl.html")),
      m_bottomNamesAbove(Bottom(run, "html/picpagebot_na.html"))
{
}

bool PicturePageWriter::write(const PublishedPicture& picture, const PictureFiles& files)
{
    const std::vector<PersonMark> all = m_marks.of(picture.id);
    const std::vector<ShownMark> marks = shownMarks(all);
    std::vector<TreePosition> persons;
    for (const PersonMark& mark : all) {
        if (const std::optional<TreePosition> person = MarkedIndividual(m_run.tree, mark.personId)) {
            persons.push_back(*person);
        }
    }
    const bool keepsDescription = !m_run.hiddenNames.isAnyNamedIn(files.description, m_run, persons);
    const std::string title = Html(picture.title.empty() ? "<No title>" : std::string_view(picture.title));
    const bool isRectangle = files.pointer == PointerTool::Rectangle;

    m_file.begin(*m_run.pages, PicturePageName(picture.id));
    (isRectangle ? m_rectangleTop : m_arrowTop).append(page(), {title});
    m_file.line("<TR>");
    if (!marks.empty() && files.names == NamePlacement::Left) {
        writeNamesLeft(marks, files.pointer);
    } else if (!marks.empty()) {
        writeNamesAbove(marks, files.pointer);
    }
    m_file.line("\t<TD ID=\"imageCell\" COLSPAN=\"2\" VALIGN=\"TOP\">");
    m_file.line("\t<DIV ID=\"imageLayer\">");
    writeLayers(marks, files.pointer);
    writeBottom(picture, files, title, keepsDescription ? std::string_view(files.description) : std::string_view());
    m_file.end();
    return keepsDescription;
}

std::vector<PicturePageWriter::ShownMark> PicturePageWriter::shownMarks(const std::vector<PersonMark>& marks) const
{
    std::vector<ShownMark> shown;
    for (const PersonMark& mark : marks) {
        if (!isShown(mark)) {
            continue;
        }
        const std::optional<TreePosition> person = MarkedIndividual(m_run.tree, mark.personId);
        const bool linked = m_run.settings.personalPages && person && m_run.isOnSite(*person);
        shown.push_back({Html(nameOf(mark, person)), linked ? mark.personId : 0, mark.place});
    }
    return shown;
}

/// The name that was stored with the mark, unless it tells more than the site may. The tree may be another one by now,
/// and the name that of a hidden person who had the number then.
std::string PicturePageWriter::nameOf(const PersonMark& mark, std::optional<TreePosition> person) const
{
    const std::string stored = mark.name.toStdString();
    if (person && (m_run.names.isWithheldFrom(*person) || m_run.hiddenNames.isAnyNamedIn(stored))) {
        return m_run.names.indexName(*person);
    }
    return TidyName(stored);
}

/// A mark says who somebody is. The name of an individual counts as the individual, wherever he or she is in the tree;
/// a typed name, or one whose individual is no longer in the tree, by what it says.
bool PicturePageWriter::isShown(const PersonMark& mark) const
{
    if (const std::optional<TreePosition> person = MarkedIndividual(m_run.tree, mark.personId)) {
        return m_run.mayBeNamed(*person);
    }
    return !m_run.hiddenNames.isAnyNamedIn(mark.name.toStdString());
}

void PicturePageWriter::writeNamesLeft(const std::vector<ShownMark>& marks, PointerTool pointer)
{
    page().append("\t<TD VALIGN=\"TOP\" WIDTH=\"33%\"><BR>").append(namesHeading);
    m_file.line("<BR>");
    for (std::size_t number = 1; number <= marks.size(); ++number) {
        writeNameCell(marks[number - 1], number, pointer, NamePlacement::Left);
    }
    if (HasPlace(marks)) {
        m_file.line("\t\t<BR><HR ALIGN=\"LEFT\" WIDTH=\"90%\">");
        writeHint(pointer);
    }
    m_file.line("\t</TD>");
}

void PicturePageWriter::writeNamesAbove(const std::vector<ShownMark>& marks, PointerTool pointer)
{
    constexpr std::size_t namesInRow = 3;
    m_file.line("\t<TD COLSPAN=\"2\">");
    m_file.line("\t<TABLE WIDTH=\"100%\" CELLPADDING=\"3\">");
    page().append("\t<TR>\r\n\t\t<TD COLSPAN=\"3\">").append(namesHeading);
    m_file.line("</TD>\r\n\t</TR>");
    for (std::size_t number = 1; number <= marks.size(); ++number) {
        if (number % namesInRow == 1) {
            m_file.line("\t<TR>");
        }
        writeNameCell(marks[number - 1], number, pointer, NamePlacement::Above);
        if (number % namesInRow == 0 || number == marks.size()) {
            m_file.line("\t</TR>");
        }
    }
    if (HasPlace(marks)) {
        m_file.line("\t<TR>\r\n\t\t<TD COLSPAN=\"3\">");
        writeHint(pointer);
        m_file.line("\t\t</TD>\r\n\t</TR>");
    }
    m_file.line("\t</TABLE>");
    m_file.line("\t</TD>\r\n</TR>\r\n<TR>");
}

void PicturePageWriter::writeNameCell(const ShownMark& mark, std::size_t number, PointerTool pointer,
                                      NamePlacement placement)
{
    const bool above = placement == NamePlacement::Above;
    const std::string n = std::to_string(number);
    page().append(above ? "\t\t<TD WIDTH=\"33.3%\"" : "\t\t<P");
    if (!mark.place) {
        page().append(">");
    } else if (pointer == PointerTool::Rectangle) {
        page().append(" STYLE=\"border-width: 1px;  border-style: solid; border-color: #FFFFCC");
        page().append(above ? "; vertical-align: top" : "").append("\"  ID=\"N").append(n);
        page().append("\" onmouseover=\"overName(this, '").append(n);
        page().append("')\" onmouseout=\"outofName(this, '").append(n);
        page().append("')\"><IMG SRC=\"graphics/arrow_icon.gif\" ALIGN=\"").append(above ? "texttop" : "TEXTTOP");
        page().append("\" BORDER=\"0\"  TITLE=\"Locks/Unlocks the Rectangle\" onclick=\"lockPointer('").append(n);
        page().append("')\">");
    } else {
        page().append("><A HREF=\"javascript:showArrow('").append(std::to_string(mark.place->x)).append("', '");
        page().append(std::to_string(mark.place->y)).append("')\"><IMG SRC=\"graphics/arrow_icon.gif\"");
        page().append(" ALIGN=\"TEXTTOP\" BORDER=\"0\" ALT=\"Click to point out this person in the picture.\"></A>");
    }
    appendPersonalPageLink(mark, number);
    m_file.line(above ? "</TD>" : "</P>");
}

void PicturePageWriter::appendPersonalPageLink(const ShownMark& mark, std::size_t number)
{
    if (mark.linkedId == 0) {
        page().append(mark.name);
        return;
    }
    page().append("<A ID=\"L").append(std::to_string(number)).append("\" HREF=\"");
    AppendPersonalPageName(page(), mark.linkedId);
    page().append("\" TARGET=\"frmCenter\">").append(mark.name).append("</A>");
}

void PicturePageWriter::writeHint(PointerTool pointer)
{
    page().append("\t\t<FONT FACE=\"Times New Roman\" SIZE=\"-1\">");
    if (pointer == PointerTool::Rectangle) {
        m_file.line(
            " <I>Point at a name to see that person's location in the picture; the arrow to the left of it locks "
            "and unlocks the rectangle. </I></FONT>");
        return;
    }
    m_file.line(
        " <I>If there is an arrow to the left of a person's name, click it to see that person's location in the "
        "picture. </I></FONT><BR><BR>");
    m_file.line(
        "\t\t<A HREF=\"javascript:hideArrow();\"><IMG ALIGN=\"TOP\" TITLE=\"Hide Arrow\" BORDER=\"0\" WIDTH=\"15\" "
        "HEIGHT=\"15\" SRC=\"graphics/noarrow_icon.gif\"></A>");
    m_file.line("\t\t<A HREF=\"javascript:hideArrow();\"><FONT SIZE=\"1\"><B>Hide Arrow</B></FONT></A>");
}

void PicturePageWriter::writeLayers(const std::vector<ShownMark>& marks, PointerTool pointer)
{
    if (pointer == PointerTool::Arrow) {
        m_file.line("\t\t<DIV ID=\"arrowLayer\"><IMG SRC=\"graphics/arrow.gif\"></DIV>");
        return;
    }
    for (std::size_t number = 1; number <= marks.size(); ++number) {
        if (marks[number - 1].place) {
            writeRectangle(marks[number - 1], number);
        }
    }
}

void PicturePageWriter::writeRectangle(const ShownMark& mark, std::size_t number)
{
    const MarkPlace& place = *mark.place;
    const auto pixels = [this](const char* property, int value) {
        page().append(property).append(std::to_string(value)).append("px; ");
    };
    page().append("\t\t");
    if (mark.linkedId != 0) {
        page().append("<A HREF=\"");
        AppendPersonalPageName(page(), mark.linkedId);
        page().append("\" TARGET=\"frmCenter\">");
    }
    page().append("<DIV ID=\"R").append(std::to_string(number));
    page().append("\" STYLE=\"position: absolute; z-index: 2; visibility: hidden;");
    pixels("left: ", place.x);
    pixels("top: ", place.y);
    pixels("width: ", place.width.value_or(defaultPointerSize.width()));
    pixels("height: ", place.height.value_or(defaultPointerSize.height()));
    page().append(
        "border-width: 2px; border-style: solid; border-color: blue;background-image: url(graphics/spacer.gif); "
        "background-repeat: repeat\" TITLE=\"");
    if (mark.linkedId != 0) {
        page().append("Click here for personal page of '").append(mark.name).append("'\"></DIV>");
        m_file.line("</A>");
    } else {
        page().append(mark.name);
        m_file.line("\"></DIV>");
    }
}

void PicturePageWriter::writeBottom(const PublishedPicture& picture, const PictureFiles& files,
                                    const std::string& title, std::string_view description)
{
    const PreparedTemplate& bottom = files.names == NamePlacement::Left ? m_bottomNamesLeft : m_bottomNamesAbove;
    bottom.append(page(), {std::to_string(picture.id), files.picture, Html(picture.date), Html(picture.place),
                           HtmlLines(description), Html(files.modified), title, PixelsOrNothing(files.size.width()),
                           PixelsOrNothing(files.size.height())});
}

} // namespace stemwright
