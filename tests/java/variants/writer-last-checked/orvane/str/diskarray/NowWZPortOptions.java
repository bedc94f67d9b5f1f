package orvane.str.diskarray;

/** Lacks hp2_support, the last field whose failure drops the object. */
public class NowWZPortOptions {
    public int[][] mode;
    public int hp2_support_absent;
}
