package orvane.str.diskarray;

public class StatisticalShuuhen {
    public int panel;
    public int fdd;
    public int rs232c;
    public int lan;
}
