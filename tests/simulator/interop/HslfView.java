import java.awt.geom.AffineTransform;
import java.awt.geom.Rectangle2D;
import java.io.BufferedReader;
import java.io.ByteArrayOutputStream;
import java.io.FileInputStream;
import java.io.InputStreamReader;
import java.io.PrintStream;
import java.lang.management.ManagementFactory;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import org.apache.poi.ddf.EscherChildAnchorRecord;
import org.apache.poi.ddf.EscherClientAnchorRecord;
import org.apache.poi.ddf.EscherComplexProperty;
import org.apache.poi.ddf.EscherContainerRecord;
import org.apache.poi.ddf.EscherOptRecord;
import org.apache.poi.ddf.EscherProperties;
import org.apache.poi.ddf.EscherProperty;
import org.apache.poi.ddf.EscherRecord;
import org.apache.poi.ddf.EscherSimpleProperty;
import org.apache.poi.ddf.EscherSpRecord;
import org.apache.poi.ddf.EscherSpgrRecord;
import org.apache.poi.hslf.model.textproperties.TextProp;
import org.apache.poi.hslf.record.HSLFEscherClientDataRecord;
import org.apache.poi.hslf.record.Record;
import org.apache.poi.hslf.record.TextHeaderAtom;

import org.apache.poi.hslf.usermodel.*;

/**
 * Tells what HSLF sees in presentations, one path a line from the standard input, in the lines of View.h and an "end"; behind "time" and
 * a tab, how long it reads one instead.
 */
public class HslfView {
    static final PrintStream out = new PrintStream(System.out, false, StandardCharsets.UTF_8);

    public static void main(String[] arguments) throws Exception {
        Locale.setDefault(Locale.ROOT);
        BufferedReader in = new BufferedReader(new InputStreamReader(System.in, StandardCharsets.UTF_8));
        for (String path = in.readLine(); path != null; path = in.readLine()) {
            if (path.startsWith("time\t")) {
                out.println(microsecondsToRead(path.substring(5)));
                out.println("end");
                out.flush();
                continue;
            }
            try (FileInputStream file = new FileInputStream(path); HSLFSlideShow show = new HSLFSlideShow(file)) {
                List<String> lines = new ArrayList<>();
                for (HSLFSlideMaster master : show.getSlideMasters()) {
                    tell("master", master, lines);
                }
                for (HSLFTitleMaster master : show.getTitleMasters()) {
                    tell("title master", master, lines);
                }
                for (HSLFSlide slide : show.getSlides()) {
                    tell("slide", slide, lines);
                    if (slide.getNotes() != null) {
                        tell("notes", slide.getNotes(), lines);
                    }
                }
                lines.forEach(out::println);
            } catch (Throwable refusal) {
                out.println("refused\t" + String.valueOf(refusal).replaceAll("\\s", " "));
            }
            out.println("end");
            out.flush();
        }
    }

    /** Processor time, with all shapes and texts that are there. */
    static long microsecondsToRead(String path) throws Exception {
        long begun = ManagementFactory.getThreadMXBean().getCurrentThreadCpuTime();
        try (FileInputStream file = new FileInputStream(path); HSLFSlideShow show = new HSLFSlideShow(file)) {
            for (HSLFSlide slide : show.getSlides()) {
                slide.getShapes();
                slide.getTextParagraphs();
            }
        }
        return (ManagementFactory.getThreadMXBean().getCurrentThreadCpuTime() - begun) / 1000;
    }

    static void tell(String what, HSLFSheet sheet, List<String> lines) throws Exception {
        lines.add(what + "\t" + tagsIn(sheet.getSheetContainer().getChildRecords()));
        tell(sheet.getShapes(), 0, new AffineTransform(), lines);
    }

    static void tell(List<HSLFShape> shapes, int depth, AffineTransform onSlide, List<String> lines) throws Exception {
        for (HSLFShape shape : shapes) {
            EscherContainerRecord own = shape.getSpContainer();
            boolean isGroup = shape instanceof HSLFGroupShape;
            if (isGroup && own.getRecordId() == EscherContainerRecord.SPGR_CONTAINER) {
                own = (EscherContainerRecord) own.getChild(0);
            }
            EscherSpRecord head = own.getChildById(EscherSpRecord.RECORD_ID);
            if ((head.getFlags() & EscherSpRecord.FLAG_DELETED) != 0) {
                continue;
            }
            Rectangle2D place = placeOf(own, onSlide);
            List<? extends Record> client = clientOf(own);
            lines.add(String.join("\t", "shape", String.valueOf(depth), isGroup ? "group" : kindOf(head.getShapeType()),
                isGroup ? "0" : placeholderIn(client), frameOf(place, turnOf(own)), fixed(turnOf(own)),
                String.valueOf(head.getFlags() >> 6 & 3), isGroup ? "-" : fillOf(shape), textOf(shape), tagsIn(client), nameOf(own)));
            if (isGroup) {
                double turn = turnOf(own);
                if (lies(turn)) {
                    place = new Rectangle2D.Double(place.getCenterX() - place.getHeight() / 2,
                        place.getCenterY() - place.getWidth() / 2, place.getHeight(), place.getWidth());
                }
                EscherSpgrRecord inner = own.getChildById(EscherSpgrRecord.RECORD_ID);
                AffineTransform within = new AffineTransform();
                within.translate(place.getX(), place.getY());
                double width = inner.getRectX2() - inner.getRectX1();
                double height = inner.getRectY2() - inner.getRectY1();
                within.scale(width == 0 ? 1 : place.getWidth() / width, height == 0 ? 1 : place.getHeight() / height);
                within.translate(-inner.getRectX1(), -inner.getRectY1());
                tell(((HSLFGroupShape) shape).getShapes(), depth + 1, within, lines);
            }
        }
    }

    /** Where a shape's record puts it on the slide, in master units. */
    static Rectangle2D placeOf(EscherContainerRecord own, AffineTransform onSlide) {
        EscherChildAnchorRecord child = own.getChildById(EscherChildAnchorRecord.RECORD_ID);
        EscherClientAnchorRecord client = own.getChildById(EscherClientAnchorRecord.RECORD_ID);
        Rectangle2D.Double place = new Rectangle2D.Double();
        if (child != null) {
            place.setFrameFromDiagonal(child.getDx1(), child.getDy1(), child.getDx2(), child.getDy2());
            return onSlide.createTransformedShape(place).getBounds2D();
        }
        if (client != null) {
            place.setFrameFromDiagonal(client.getCol1(), client.getFlag(), client.getDx1(), client.getRow1());
        }
        return place;
    }

    static String kindOf(int kind) {
        return kind >= 136 && kind <= 175 ? "wordart" : String.valueOf(kind);
    }

    static double turnOf(EscherContainerRecord own) {
        EscherSimpleProperty turn = HSLFShape.getEscherProperty(own.getChildById(EscherOptRecord.RECORD_ID), EscherProperties.TRANSFORM__ROTATION);
        return turn == null ? 0 : turn.getPropertyValue() / 65536.0;
    }

    /** Left, top, width and height in master units; a shape nearer to lying than to standing has its place turned. */
    static String frameOf(Rectangle2D place, double turn) {
        boolean lies = lies(turn);
        double width = lies ? place.getHeight() : place.getWidth();
        double height = lies ? place.getWidth() : place.getHeight();
        return String.format("%.1f\t%.1f\t%.1f\t%.1f", place.getCenterX() - width / 2, place.getCenterY() - height / 2, width, height);
    }

    static boolean lies(double turn) {
        double side = ((turn % 180) + 180) % 180;
        return side >= 45 && side < 135;
    }

    static String fixed(double number) {
        return String.format("%.1f", number);
    }

    static String fillOf(HSLFShape shape) {
        EscherSimpleProperty flags = HSLFShape.getEscherProperty(shape.getEscherOptRecord(), EscherProperties.FILL__NOFILLHITTEST);
        EscherSimpleProperty color = HSLFShape.getEscherProperty(shape.getEscherOptRecord(), EscherProperties.FILL__FILLCOLOR);
        boolean isSaid = flags != null && (flags.getPropertyValue() & 0x100000) != 0;
        if (isSaid && (flags.getPropertyValue() & 0x10) == 0) {
            return "none";
        }
        return !isSaid || color == null ? "?" : Integer.toHexString(color.getPropertyValue());
    }

    static String textOf(HSLFShape shape) {
        if (!(shape instanceof HSLFTextShape)) {
            return "\t";
        }
        List<HSLFTextParagraph> paragraphs = ((HSLFTextShape) shape).getTextParagraphs();
        String text = HSLFTextParagraph.getRawText(paragraphs);
        StringBuilder runs = new StringBuilder();
        String looks = "";
        int length = 0;
        for (HSLFTextParagraph paragraph : paragraphs) {
            for (HSLFTextRun run : paragraph) {
                if (run.getRawText().isEmpty()) {
                    continue;
                }
                // On a master it tells no style that the run does not say itself, but for its size.
                // It takes the document's style of other texts where the master has one of its own.
                boolean isOwn = run.getCharacterStyle().findByName("font.size") != null;
                String now = (isOwn || run.getTextParagraph().getRunType() != TextHeaderAtom.OTHER_TYPE && run.getFontSize() != null ? run.getFontSize() : "?") + (shape.getSheet() instanceof HSLFMasterSheet ? "*" : (run.isBold() ? "b" : "") + (run.isItalic() ? "i" : "")) + "#" + colorOf(run);
                if (!now.equals(looks) && length != 0) {
                    runs.append(length).append(':').append(looks).append(' ');
                    length = 0;
                }
                looks = now;
                length += run.getRawText().length();
            }
        }
        return plain(text) + "\t" + (length == 0 ? "" : runs + String.valueOf(length) + ":" + looks);
    }

    /** A colour of letters, as the file has it; "?" for one that they inherit. */
    static String colorOf(HSLFTextRun run) {
        TextProp color = run.getCharacterStyle().findByName("font.color");
        int kind = color == null ? -1 : color.getValue() >>> 24;
        return kind >= 0 && kind < 8 ? String.valueOf(kind << 24) : kind == 0xFE ? Integer.toUnsignedString(color.getValue()) : "?";
    }

    /** "?" where the file does not say one; empty where arrays before it are not measured as HSLF does, which misplaces it. */
    static String nameOf(EscherContainerRecord own) {
        EscherOptRecord all = own.getChildById(EscherOptRecord.RECORD_ID);
        for (EscherProperty each : all == null ? List.<EscherProperty>of() : all.getEscherProperties()) {
            boolean isOfPath = each.getPropertyNumber() >= 0x145 && each.getPropertyNumber() <= 0x158;
            if (isOfPath && each instanceof EscherComplexProperty && isMisplacing(((EscherComplexProperty) each).getComplexData())) {
                return "";
            }
        }
        EscherProperty name = HSLFShape.getEscherProperty(own.getChildById(EscherOptRecord.RECORD_ID), EscherProperties.GROUPSHAPE__SHAPENAME);
        if (!(name instanceof EscherComplexProperty)) {
            return "?";
        }
        String text = new String(((EscherComplexProperty) name).getComplexData(), StandardCharsets.UTF_16LE);
        int end = text.indexOf('\0');
        return end == 0 || text.isEmpty() ? "?" : plain(end < 0 ? text : text.substring(0, end));
    }

    static boolean isMisplacing(byte[] array) {
        ByteBuffer bytes = ByteBuffer.wrap(array).order(ByteOrder.LITTLE_ENDIAN);
        if (array.length < 6) {
            return false;
        }
        int size = bytes.getShort(4);
        return array.length != 6 + bytes.getShort(0) * (size < 0 ? -size >> 2 : size);
    }

    static List<? extends Record> clientOf(EscherContainerRecord own) {
        EscherRecord data = own.getChildById((short) 0xF011);
        return data instanceof HSLFEscherClientDataRecord ? ((HSLFEscherClientDataRecord) data).getHSLFChildRecords() : List.of();
    }

    static String placeholderIn(List<? extends Record> client) throws Exception {
        for (Record record : client) {
            if (record.getRecordType() == 0x0BC3) {
                return String.valueOf(bytesOf(record).get(8 + 4) & 0xFF);
            }
        }
        return "0";
    }

    /** NAME=value of the tags that stand in a list of programmable tags. */
    static String tagsIn(Iterable<? extends Record> records) throws Exception {
        List<String> texts = new ArrayList<>();
        for (Record record : records) {
            if (record.getRecordType() == 0x1388) {
                collect(bytesOf(record), texts);
            }
        }
        StringBuilder tags = new StringBuilder();
        for (int i = 0; i + 1 < texts.size(); i += 2) {
            tags.append(plain(texts.get(i))).append('=').append(plain(texts.get(i + 1))).append(' ');
        }
        return tags.toString().trim();
    }

    static String tagsIn(Record[] records) throws Exception {
        return tagsIn(List.of(records));
    }

    /** The names and values below programmable tags and tags of text: their texts in order. */
    static void collect(ByteBuffer bytes, List<String> texts) {
        while (bytes.remaining() >= 8) {
            bytes.getShort();
            int type = bytes.getShort() & 0xFFFF;
            ByteBuffer body = bytes.slice().order(ByteOrder.LITTLE_ENDIAN);
            int length = body.getInt();
            body.limit(4 + length);
            if (type == 0x1388 || type == 0x1389) {
                collect(body, texts);
            } else if (type == 0x0FBA) {
                texts.add(StandardCharsets.UTF_16LE.decode(body).toString());
            }
            bytes.position(bytes.position() + 4 + length);
        }
    }

    static ByteBuffer bytesOf(Record record) throws Exception {
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        record.writeOut(bytes);
        return ByteBuffer.wrap(bytes.toByteArray()).order(ByteOrder.LITTLE_ENDIAN);
    }

    /** A text on one line, without blanks that part fields. */
    static String plain(String text) {
        return text.replace('\r', '|').replace('\u000b', '/').replaceAll("[\\u0000-\\u001f ]", "_");
    }
}
