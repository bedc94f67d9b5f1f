package orvane.str.diskarray;

public class MicroFileInformation {
    public String micro;
    public int valid;
    public int booting_wait;
}
