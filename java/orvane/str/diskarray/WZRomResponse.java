package orvane.str.diskarray;

public class WZRomResponse {
    public int mode;
    public int[] port_save_data;
}
