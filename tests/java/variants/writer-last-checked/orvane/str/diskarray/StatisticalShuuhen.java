package orvane.str.diskarray;

/** Lacks lan, the last field whose failure drops the object. */
public class StatisticalShuuhen {
    public int panel;
    public int fdd;
    public int rs232c;
    public int lan_absent;
}
