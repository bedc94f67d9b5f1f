package orvane.str.diskarray;

public class NowWZPortOptions {
    public int[][] mode;
    public int hp2_support;
}
