package kxtest;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;
import java.util.Arrays;

/** Little-endian C record bytes: built for scripting, read for checking. */
public final class Rec {
    private final ByteBuffer buf;

    private Rec(byte[] bytes) {
        buf = ByteBuffer.wrap(bytes).order(ByteOrder.LITTLE_ENDIAN);
    }

    public static Rec of(int size) {
        return new Rec(new byte[size]);
    }

    public static Rec wrap(byte[] bytes) {
        return new Rec(bytes);
    }

    public byte[] bytes() {
        return buf.array();
    }

    public int size() {
        return buf.capacity();
    }

    public Rec i32(int off, int v) {
        buf.putInt(off, v);
        return this;
    }

    public Rec u8(int off, int v) {
        buf.put(off, (byte) v);
        return this;
    }

    /** ASCII text at off, without a terminating NUL beyond what the record already holds. */
    public Rec str(int off, String s) {
        byte[] b = s.getBytes(StandardCharsets.UTF_8);
        buf.position(off);
        buf.put(b);
        buf.position(0);
        return this;
    }

    public Rec put(int off, byte[] b) {
        buf.position(off);
        buf.put(b);
        buf.position(0);
        return this;
    }

    public int i32(int off) {
        return buf.getInt(off);
    }

    public int u8(int off) {
        return buf.get(off) & 0xFF;
    }

    /** The NUL-terminated text of the n-byte field at off. */
    public String str(int off, int n) {
        int end = off;
        while (end < off + n && buf.get(end) != 0) end++;
        return new String(buf.array(), off, end - off, StandardCharsets.UTF_8);
    }

    public byte[] slice(int off, int n) {
        return Arrays.copyOfRange(buf.array(), off, off + n);
    }

    /** True when bytes [off, off+n) are all zero. */
    public boolean zero(int off, int n) {
        for (int i = off; i < off + n; i++) if (buf.get(i) != 0) return false;
        return true;
    }
}
