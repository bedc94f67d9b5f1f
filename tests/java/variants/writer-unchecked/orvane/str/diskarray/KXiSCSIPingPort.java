package orvane.str.diskarray;

/** Lacks ip_address, its last unchecked field. */
public class KXiSCSIPingPort {
    public int port_valid;
    public int request_valid;
    public String ip_address_absent;
    public int status;
    public int execute_count;
    public int success_count;
    public int schedule_count;
}
