package kxtest;

/** An object with one field of each kind the helpers read and write. */
public class Fields {
    public int i;
    public String s;
    public String[] strs;
    public int[] ints;
    public int[][] grid;
    public byte[] bytes;
    public short fixed;
}
